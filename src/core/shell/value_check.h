#pragma once

#include "data/province_table.h"
#include "shell/problem.h"

#include <vector>

namespace shell {

/// Returns the table's cells that hold what the game or the program cannot take, province by
/// province. `lines` says where the values came from.
std::vector<Problem> check_values(const data::ProvinceTable& table, const LanguageTexts& language,
                                  const ProvinceLines& lines);

} // namespace shell
