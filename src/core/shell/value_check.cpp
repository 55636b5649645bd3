#include "shell/value_check.h"

#include "data/numbers.h"
#include "data/text.h"
#include "editor/fields.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace shell {

namespace {

namespace column = data::column;
using data::FileColumn;

/// What a column's cells must be.
enum class Form {
    code, // of the value list of the column's field
    flag, // 0 or 1
    number,
    scale, // a number from 0 to the rule's highest
    coast, // coastal or inland
};

struct Rule {
    FileColumn column;
    Form form;
    double highest; // of a scale
};

constexpr auto rules = std::to_array<Rule>({
    {column::coast, Form::coast, 0},
    {column::religion, Form::code, 0},
    {column::culture, Form::code, 0},
    {column::size_modifier, Form::number, 0},
    {column::pashas, Form::number, 0},
    {column::climate, Form::code, 0},
    {column::ice, Form::flag, 0},
    {column::storm, Form::flag, 0},
    {column::galleys, Form::flag, 0},
    {column::manpower, Form::number, 0},
    {column::income, Form::number, 0},
    {column::terrain, Form::code, 0},
    {column::treaty_spain, Form::flag, 0},
    {column::treaty_portugal, Form::flag, 0},
    {column::empire, Form::code, 0},
    {column::mine_flag, Form::flag, 0},
    {column::mine_value, Form::number, 0},
    {column::goods, Form::code, 0},
    {column::upgradable, Form::flag, 0},
    {column::trade_centre, Form::code, 0},
    {column::colony_difficulty, Form::code, 0},
    {column::native_strength, Form::number, 0},
    {column::ferocity, Form::scale, 5},
    {column::efficiency, Form::scale, 2},
    {column::trade_difficulty, Form::code, 0},
    {column::tolerance, Form::code, 0},
    {column::city_x, Form::number, 0},
    {column::city_y, Form::number, 0},
    {column::army_x, Form::number, 0},
    {column::army_y, Form::number, 0},
    {column::port_x, Form::number, 0},
    {column::port_y, Form::number, 0},
    {column::manufactory_x, Form::number, 0},
    {column::manufactory_y, Form::number, 0},
    {column::port_sea, Form::number, 0},
    {column::drawing_x[0], Form::number, 0},
    {column::drawing_y[0], Form::number, 0},
    {column::drawing_variant[0], Form::number, 0},
    {column::drawing_x[1], Form::number, 0},
    {column::drawing_y[1], Form::number, 0},
    {column::drawing_variant[1], Form::number, 0},
    {column::drawing_x[2], Form::number, 0},
    {column::drawing_y[2], Form::number, 0},
    {column::drawing_variant[2], Form::number, 0},
    {column::drawing_x[3], Form::number, 0},
    {column::drawing_y[3], Form::number, 0},
    {column::drawing_variant[3], Form::number, 0},
    {column::area, Form::code, 0},
    {column::region, Form::code, 0},
    {column::continent, Form::code, 0},
    {column::rivers[0], Form::number, 0},
    {column::rivers[1], Form::number, 0},
    {column::rivers[2], Form::number, 0},
});

class ValueChecker {
  public:
    ValueChecker(const data::ProvinceTable& table, const LanguageTexts& language,
                 const ProvinceLines& lines)
        : table_(table), language_(language), lines_(lines) {}

    std::vector<Problem> run() {
        for (const Rule& rule : rules)
            check(rule);
        check_mines();
        check_lines();
        std::stable_sort(
            problems_.begin(), problems_.end(), [](const Problem& left, const Problem& right) {
                return left.province != right.province ? left.province < right.province
                                                       : left.column->number < right.column->number;
            });
        return std::move(problems_);
    }

  private:
    using Verdict = std::optional<Text>;

    std::span<const std::string> cells(FileColumn column) const {
        return table_.column(data::table_column(column));
    }

    void add(Text what, std::size_t row, FileColumn column, std::string detail = {}) {
        problems_.push_back({.what = what,
                             .line = lines_.at(row),
                             .province = static_cast<int>(row),
                             .column = column,
                             .value = cells(column)[row],
                             .detail = std::move(detail),
                             .is_hint = what == Text::problem_coast});
    }

    void check(const Rule& rule) {
        const auto column = cells(rule.column);
        // Most provinces hold what another one held before.
        std::unordered_map<std::string_view, Verdict> verdicts;
        for (std::size_t row = 1; row < column.size(); ++row) {
            if (data::is_blank(column[row]))
                continue;
            const auto [found, is_new] = verdicts.try_emplace(column[row]);
            if (is_new)
                found->second = verdict(rule, column[row]);
            if (found->second)
                add(*found->second, row, rule.column, data::to_text(rule.highest));
        }
    }

    Verdict verdict(const Rule& rule, std::string_view cell) const {
        const auto unless = [](bool is_right, Text what) {
            return is_right ? Verdict() : Verdict(what);
        };
        const double number = data::leading_number(cell);
        switch (rule.form) {
        case Form::code:
            return unless(is_code(rule.column, cell), Text::problem_unknown_code);
        case Form::flag:
            return unless(data::is_number(cell) && (number == 0 || number == 1),
                          Text::problem_no_flag);
        case Form::coast:
            return unless(data::equal_ignoring_case(cell, "coastal") ||
                              data::equal_ignoring_case(cell, "inland"),
                          Text::problem_coast);
        case Form::number:
        case Form::scale:
            break;
        }
        if (!data::is_number(cell))
            return Text::problem_no_number;
        const bool fits = rule.form == Form::number || (number >= 0 && number <= rule.highest);
        return unless(fits, Text::problem_out_of_range);
    }

    /// Returns whether the list of the column's field has the code. A language file without the
    /// list says nothing about its codes.
    bool is_code(FileColumn column, std::string_view cell) const {
        const auto list = language_.list(editor::fields[data::field_number(column)].list_prefix);
        return list.empty() || index_of_code(list, cell) >= 0;
    }

    /// The mine flag follows the goods; goods that are no code are reported by themselves.
    void check_mines() {
        const auto flags = cells(column::mine_flag);
        const auto goods = cells(column::goods);
        for (std::size_t row = 1; row < flags.size(); ++row) {
            if (data::is_blank(flags[row]) || data::is_blank(goods[row]))
                continue;
            const double flag = data::leading_number(flags[row]);
            const bool is_gold = data::equal_ignoring_case(goods[row], "gold");
            const bool differs = is_gold ? flag == 0 : flag == 1;
            if (differs && data::is_number(flags[row]) && is_code(column::goods, goods[row]))
                add(Text::problem_mine_flag, row, column::mine_flag, goods[row]);
        }
    }

    /// A cell is saved as it is, so it must not hold what separates cells and lines.
    void check_lines() {
        for (data::TableColumn index{0}; index.index < data::first_unwritten.index; ++index.index) {
            const auto column = table_.column(index);
            for (std::size_t row = 1; row < column.size(); ++row) {
                if (column[row].find_first_of(";\r") != std::string::npos)
                    add(Text::problem_breaks_line, row, data::file_column(index));
            }
        }
    }

    const data::ProvinceTable& table_;
    const LanguageTexts& language_;
    const ProvinceLines& lines_;
    std::vector<Problem> problems_;
};

} // namespace

std::vector<Problem> check_values(const data::ProvinceTable& table, const LanguageTexts& language,
                                  const ProvinceLines& lines) {
    return ValueChecker(table, language, lines).run();
}

} // namespace shell
