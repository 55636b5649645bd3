#include "data/province_file.h"
#include "shell/file_check.h"
#include "targets.h"

void fuzz::round_trip(std::string_view bytes) {
    data::ProvinceTable table;
    accepts([&] { data::read_provinces(bytes, table); }); // what stands before a bad line counts

    // What is read back into the same table changes nothing there.
    const auto written = data::write_provinces(table);
    const auto report = data::read_provinces(written, table, data::Source::copy);
    assert(report.lines == data::last_province + 3);
    assert(report.provinces == data::last_province);
    assert(!table.has_unsaved_changes());

    for (const auto& problem : shell::check_file(written).problems)
        assert(problem.what == shell::Text::problem_lone_line_feeds ||
               problem.what == shell::Text::problem_nul_bytes); // those are in the cells
}
