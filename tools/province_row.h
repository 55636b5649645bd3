#pragma once

#include "data/columns.h"
#include "data/province_table.h"
#include "positions.h"
#include "shell/language.h"

#include <array>
#include <string>
#include <string_view>

namespace sample {

/// The province file's columns by what they mean; a position's X, its Y stands in the next one.
namespace column {

using data::FileColumn;

inline constexpr FileColumn name{2}, coast{3}, religion{4}, culture{5}, size_modifier{6}, pashas{7},
    climate{8}, ice{9}, storm{10}, galleys{11}, manpower{12}, income{13}, terrain{14},
    treaty_spain{15}, treaty_portugal{16}, empire{17}, mine{18}, mine_value{19}, goods{20},
    upgradable{21}, trade_centre{22}, colony_difficulty{23}, native_strength{24}, ferocity{25},
    efficiency{26}, trade_difficulty{27}, tolerance{28}, city{29}, army{31}, port{33},
    manufactory{35}, port_sea{37}, area{50}, region{51}, continent{52}, city_name{53};
inline constexpr std::array<FileColumn, 4> drawings = {{{38}, {41}, {44}, {47}}};
inline constexpr std::array<FileColumn, 4> variants = {{{40}, {43}, {46}, {49}}};
inline constexpr std::array<FileColumn, 3> rivers = {{{54}, {55}, {56}}};

} // namespace column

/// Writes the values of one province.
class ProvinceRow {
  public:
    ProvinceRow(data::ProvinceTable& table, int province) : table_(table), province_(province) {}

    void set(data::FileColumn column, std::string_view text) {
        table_.load(province_, data::table_column(column), text);
    }
    void set(data::FileColumn column, const char* text) { set(column, std::string_view(text)); }
    void set(data::FileColumn column, const std::string& text) {
        set(column, std::string_view(text));
    }
    void set(data::FileColumn column, int number) { set(column, std::to_string(number)); }
    void set(data::FileColumn column, bool flag) { set(column, flag ? "1" : "0"); }

    /// Writes both coordinates of a position.
    void set(data::FileColumn x, Pixel position);

    /// Writes the goods, and the mine that goes with gold.
    void set_goods(std::string_view goods, int gold_value);

  private:
    data::ProvinceTable& table_;
    int province_;
};

/// Gives every code of the value lists that no province has to a land province whose own code
/// others have, too.
void use_every_code(data::ProvinceTable& table, const shell::LanguageTexts& language);

} // namespace sample
