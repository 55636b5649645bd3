#include "data/province_file.h"

#include "targets.h"

void fuzz::province_file(std::string_view bytes) {
    data::ProvinceTable table;
    const bool taken = accepts([&] { data::read_provinces(bytes, table, data::Source::copy); });
    for (const auto& change : table.changes())
        assert(change.before.empty() && !table.cell(change.province, change.column).empty());

    // The same cells are as in their file when the file gives them.
    data::ReadReport report;
    assert(accepts([&] { report = data::read_provinces(bytes, table); }) == taken);
    assert(!table.has_unsaved_changes());

    const auto passing =
        data::read_provinces(bytes, table, data::Source::file, data::BadLine::is_passed_over);
    assert(passing.provinces <= passing.lines);
    assert(!taken || passing.provinces == report.provinces);
}
