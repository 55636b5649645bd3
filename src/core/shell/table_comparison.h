#pragma once

#include "data/columns.h"
#include "data/province_table.h"

#include <string>
#include <vector>

namespace shell {

/// A cell that two tables hold with different texts.
struct CellDifference {
    int province;
    data::FileColumn column;
    std::string before;
    std::string now;
};

/// Returns the cells of the columns that files keep (2 to 56) in which the tables differ, province
/// by province.
std::vector<CellDifference> compare(const data::ProvinceTable& before,
                                    const data::ProvinceTable& now);

/// Returns in how many provinces the tables differ in those columns.
int differing_provinces(const data::ProvinceTable& before, const data::ProvinceTable& now);

/// Returns "province N, COLUMN (header): "before" -> "now"".
std::string printed_line(const CellDifference& difference);

} // namespace shell
