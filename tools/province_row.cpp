#include "province_row.h"

#include <map>

namespace sample {

namespace {

struct CodedColumn {
    data::FileColumn column;
    std::string_view prefix; // of the language file's value list
};

constexpr std::array<CodedColumn, 12> coded_columns = {{
    {column::religion, "RELIGION_"},
    {column::culture, "CULTURE_"},
    {column::climate, "CLIMAT_"},
    {column::terrain, "TERRAIN_"},
    {column::goods, "PRODUCTION_"},
    {column::trade_centre, "COT_"},
    {column::colony_difficulty, "DC_"},
    {column::trade_difficulty, "DC_"},
    {column::tolerance, "TOL_"},
    {column::area, "AIRE_"},
    {column::region, "REGION_"},
    {column::continent, "CONTINENT_"},
}};

bool is_land(const data::ProvinceTable& table, int province) {
    const std::string& terrain = table.cell(province, data::table_column(column::terrain));
    return terrain != "5" && terrain != "6";
}

void use_every_code(data::ProvinceTable& table, const CodedColumn& coded,
                    std::span<const shell::Entry> codes) {
    const auto cells = table.column(data::table_column(coded.column));
    std::map<std::string, int> uses;
    for (const std::string& cell : cells)
        ++uses[cell];
    int province = 1;
    for (const auto& entry : codes) {
        if (uses[entry.code] > 0)
            continue;
        while (province < data::last_province &&
               (!is_land(table, province) || uses[cells[static_cast<std::size_t>(province)]] < 2))
            ++province;
        --uses[cells[static_cast<std::size_t>(province)]];
        ++uses[entry.code];
        ProvinceRow row(table, province);
        if (coded.column == column::goods)
            row.set_goods(entry.code, 25);
        else
            row.set(coded.column, entry.code);
        ++province;
    }
}

} // namespace

void ProvinceRow::set(data::FileColumn x, Pixel position) {
    set(x, position.x);
    set(data::FileColumn{x.number + 1}, position.y);
}

void ProvinceRow::set_goods(std::string_view goods, int gold_value) {
    const bool is_gold = goods == "gold";
    set(column::goods, goods);
    set(column::mine_flag, is_gold);
    set(column::mine_value, is_gold ? gold_value : 0);
}

void use_every_code(data::ProvinceTable& table, const shell::LanguageTexts& language) {
    for (const CodedColumn& coded : coded_columns)
        use_every_code(table, coded, language.list(coded.prefix));
}

} // namespace sample
