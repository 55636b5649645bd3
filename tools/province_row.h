#pragma once

#include "data/columns.h"
#include "data/province_table.h"
#include "positions.h"
#include "shell/language.h"

#include <array>
#include <string>
#include <string_view>

namespace sample {

namespace column = data::column;

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
