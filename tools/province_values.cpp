#include "province_values.h"

#include "data/columns.h"
#include "data/numbers.h"
#include "names.h"
#include "random.h"
#include "regions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace sample {

namespace {

namespace column = data::column;

enum class TerrainCode { plains, forest, mountain, desert, marsh, sea, river };

/// Goods by terrain code; what stands more often is found more often.
constexpr std::array<std::string_view, 5> goods_of = {
    "grain grain grain livestock livestock wine wool cotton tobacco oliveoil silk nothing",
    "timber timber furs furs dyes sugar coffee spices livestock nothing",
    "iron copper silver gold wool salt gold iron nothing",
    "salt livestock dyes cotton gold nothing nothing",
    "fish salt timber sugar spices nothing",
};

TerrainCode terrain_code(const Province& province, double warm, Random& random) {
    if (province.ground != Ground::land)
        return province.ground == Ground::sea ? TerrainCode::sea : TerrainCode::river;
    if (province.height > 0.3)
        return TerrainCode::mountain;
    if (province.moisture < 0.25 && warm > 0.35)
        return TerrainCode::desert;
    if (province.moisture > 0.55 && province.height < 0.14 && random.chance(22))
        return TerrainCode::marsh;
    return province.moisture > 0.5 && random.chance(70) ? TerrainCode::forest : TerrainCode::plains;
}

/// Writes one province's values, group by group.
class Describer {
  public:
    Describer(data::ProvinceTable& table, const World& world, int id, const Positions& positions,
              Names& names)
        : table_(table),
          id_(id),
          world_(world),
          province_(world.provinces[static_cast<std::size_t>(id)]),
          region_(regions()[province_.region]),
          positions_(positions),
          names_(names),
          random_(mixed(static_cast<std::uint64_t>(id))),
          latitude_(latitude_of(province_.centre.y)),
          warm_(warmth(latitude_, std::max(province_.height, 0.0))),
          terrain_(terrain_code(province_, warm_, random_)),
          is_land_(province_.ground == Ground::land),
          is_exotic_(region_.religions.starts_with("exotic")) {}

    void describe() {
        names();
        people();
        ground();
        economy();
        natives();
        places();
    }

  private:
    void set(data::FileColumn column, std::string_view text) {
        table_.load(id_, data::table_column(column), text);
    }
    void set(data::FileColumn column, int number) { set(column, std::to_string(number)); }
    void set(data::FileColumn x, Pixel position) {
        set(x, position.x);
        set(data::FileColumn{x.number + 1}, position.y);
    }

    void names() {
        const std::string name = is_land_ ? names_.province(region_.speech, random_)
                                 : province_.ground == Ground::sea
                                     ? names_.sea(region_.speech, random_)
                                     : names_.river(region_.speech, random_);
        set(column::name, name);
        // Not every province has a city.
        const bool has_city = is_land_ && !random_.chance(is_exotic_ ? 35 : 2);
        set(column::city_name, has_city ? names_.city(region_.speech, name, random_) : "");
    }

    void people() {
        const auto religions = words(region_.religions);
        const auto cultures = words(region_.cultures);
        const bool is_minority = religions.size() > 1 && random_.chance(18);
        set(column::religion, is_land_ ? religions[is_minority ? 1 : 0] : "exotic");
        set(column::culture,
            is_land_ ? cultures[static_cast<std::size_t>(province_.culture)] : "none");
        set(column::region, region_.code);
        set(column::continent, region_.continent.empty() ? "-" : region_.continent);
        set(column::area, area());
        set(column::empire, region_.in_empire && is_land_);
        set(column::pashas, is_land_ && religions[0] == "sunni" ? random_.below(4) : 0);
        set(column::manpower, is_land_ ? random_.between(1, is_exotic_ ? 3 : 12) : 0);
    }

    std::string_view area() const {
        if (province_.area < 0)
            return is_land_ ? "" : "-";
        const auto index = static_cast<std::size_t>(province_.area);
        return is_land_ ? words(region_.areas)[index] : sea_areas()[index].code;
    }

    void ground() {
        const int cold = static_cast<int>(std::lround((1 - warm_) * 9.5 - 0.5));
        set(column::climate, std::clamp(cold, 0, 8));
        set(column::terrain, static_cast<int>(terrain_));
        set(column::size_modifier, is_land_ ? random_.between(0, 5) : 0);
        set(column::coast, is_land_ && positions_.sea != 0 ? "coastal" : "inland");

        const bool is_sea = terrain_ == TerrainCode::sea;
        const auto coasts =
            std::count_if(province_.neighbours.begin(), province_.neighbours.end(), [&](int other) {
                return world_.provinces[static_cast<std::size_t>(other)].ground == Ground::land;
            });
        set(column::ice, is_sea && warm_ < 0.25);
        set(column::storm, is_sea && random_.chance(std::abs(latitude_) > 38 ? 45 : 12));
        set(column::galleys, is_sea && coasts >= 5);

        std::vector<int> rivers;
        for (const int other : province_.neighbours) {
            if (is_land_ &&
                world_.provinces[static_cast<std::size_t>(other)].ground == Ground::river)
                rivers.push_back(other);
        }
        rivers.resize(column::rivers.size()); // 0 is no river
        for (std::size_t link = 0; link < rivers.size(); ++link)
            set(column::rivers[link], rivers[link]);
    }

    void economy() {
        const std::string_view goods = is_land_ ? this->goods() : "nothing";
        const int gold = random_.between(10, 80);
        set(column::goods, goods);
        set(column::mine_flag, goods == "gold");
        set(column::mine_value, goods == "gold" ? gold : 0);
        set(column::income, is_land_ ? random_.between(1, is_exotic_ ? 8 : 26) : 0);
        set(column::upgradable, is_land_ && goods != "nothing" && random_.chance(40));
        const int trade = is_land_ ? std::max(-3, random_.between(-9, 5)) : -3;
        set(column::trade_centre, positions_.sea != 0 ? trade : std::min(trade, 2));
    }

    std::string_view goods() {
        if (positions_.sea != 0 && random_.chance(25))
            return "fish";
        const auto choices = words(goods_of[static_cast<std::size_t>(terrain_)]);
        const auto goods = random_.pick(choices);
        const bool is_tropical = goods == "sugar" || goods == "coffee" || goods == "spices" ||
                                 goods == "cotton" || goods == "tobacco";
        return is_tropical && warm_ < 0.65 ? "timber" : goods;
    }

    void natives() {
        const bool wild = is_land_ && is_exotic_;
        set(column::colony_difficulty, wild ? random_.between(0, 9) : 0);
        set(column::trade_difficulty, wild ? random_.between(0, 9) : 0);
        set(column::native_strength, wild ? random_.between(0, 60) : 0);
        set(column::ferocity, wild ? data::to_text(random_.between(0, 20) / 4.0) : "0");
        set(column::efficiency, wild ? data::to_text(random_.between(0, 20) / 10.0) : "0");
        set(column::tolerance, wild ? random_.between(0, 9) : 0);
        const bool portuguese = region_.code == "brazil" || region_.continent != "america";
        set(column::treaty_spain, wild && !portuguese);
        set(column::treaty_portugal, wild && portuguese && region_.continent != "europe");
    }

    void places() {
        set(column::city_x, positions_.city);
        set(column::army_x, positions_.army);
        set(column::port_x, positions_.port);
        set(column::manufactory_x, positions_.manufactory);
        set(column::port_sea, positions_.sea);
        // Open country keeps some of its room free.
        const int room = static_cast<int>(positions_.drawings.size());
        const int drawn =
            terrain_ == TerrainCode::plains ? random_.below(room + 1) : std::max(room, 0);
        for (int drawing = 0; drawing < static_cast<int>(column::drawing_x.size()); ++drawing) {
            const auto index = static_cast<std::size_t>(drawing);
            const bool has = drawing < drawn;
            set(column::drawing_x[index], has ? positions_.drawings[index] : Pixel{-100, -100});
            set(column::drawing_variant[index], has ? random_.below(8) : 0);
        }
    }

    data::ProvinceTable& table_;
    int id_;
    const World& world_;
    const Province& province_;
    const Region& region_;
    const Positions& positions_;
    Names& names_;
    Random random_;
    double latitude_;
    double warm_;
    TerrainCode terrain_;
    bool is_land_;
    bool is_exotic_;
};

} // namespace

data::ProvinceTable make_values(const World& world, std::span<const Positions> positions) {
    data::ProvinceTable table;
    Names names;
    for (int id = 1; id <= data::last_province; ++id)
        Describer(table, world, id, positions[static_cast<std::size_t>(id)], names).describe();
    return table;
}

} // namespace sample
