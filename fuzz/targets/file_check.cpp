#include "shell/file_check.h"

#include "data/province_file.h"
#include "targets.h"

#include <algorithm>

namespace {

bool has(const shell::FileCheck& check, shell::Text what) {
    return std::any_of(check.problems.begin(), check.problems.end(),
                       [what](const shell::Problem& problem) { return problem.what == what; });
}

} // namespace

void fuzz::file_check(std::string_view bytes) {
    const auto check = shell::check_file(bytes);
    data::ProvinceTable table;
    const bool readable = accepts([&] { data::read_provinces(bytes, table); });
    if (has(check, shell::Text::problem_unreadable_line))
        assert(!readable);
    else // a first line that is no province's is checked as a header only
        assert(readable || has(check, shell::Text::problem_header));

    const auto carriage_returns = std::count(bytes.begin(), bytes.end(), '\r');
    const shell::LanguageTexts english;
    for (const auto& problem : check.problems) {
        assert(problem.line >= 0 && problem.line <= carriage_returns + 1);
        assert(problem.province >= 0 && problem.province <= data::last_province);
        if (problem.line == 0)
            continue; // a province is missing: of these there are thousands
        const auto line = shell::printed_line(problem, "file", english);
        assert(std::all_of(line.begin(), line.end(), [](unsigned char c) { return c >= ' '; }));
    }
}
