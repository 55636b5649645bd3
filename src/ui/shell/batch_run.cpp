#include "shell/batch_run.h"

#include "base/files.h"
#include "base/qt_text.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "data/province_file.h"
#include "data/run_time_error.h"
#include "shell/backups.h"
#include "shell/file_check.h"
#include "shell/map_check.h"
#include "shell/program_folder.h"
#include "shell/read_report.h"
#include "shell/session.h"
#include "shell/start_up.h"
#include "shell/table_comparison.h"
#include "shell/value_check.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace shell {

namespace {

constexpr int nothing_found = 0;
constexpr int something_found = 1;
constexpr int file_failed = 3;

void tell(const std::string& text) {
    std::cerr << base::message_text(text).toStdString() << std::endl;
}

void print(const QString& line) {
    std::cout << line.toStdString() << '\n';
}

/// Returns whether reading would find further provinces if line feeds alone ended lines, too.
bool loses_provinces(std::string bytes, const data::ReadReport& report) {
    if (report.lone_line_feeds.empty())
        return false;
    std::replace(bytes.begin(), bytes.end(), '\n', '\r');
    data::ProvinceTable table;
    const auto read =
        data::read_provinces(bytes, table, data::Source::file, data::BadLine::is_passed_over);
    return read.provinces > report.provinces;
}

/// Reads the file's bytes into the table. Throws for a bad line that ends the reading; then what
/// else would not be read ends it, too, since nobody may be there to see a notice.
void read(const std::string& path, const std::string& bytes, data::ProvinceTable& table,
          data::BadLine bad_line, const LanguageTexts& language) {
    data::ReadReport report;
    try {
        report = data::read_provinces(bytes, table, data::Source::file, bad_line);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
    tell_what_was_read(path, report);
    if (bad_line == data::BadLine::is_passed_over)
        return;
    if (report.provinces == 0)
        throw std::runtime_error(language.text(Text::batch_no_province, {base::shown_path(path)}));
    if (loses_provinces(bytes, report))
        throw std::runtime_error(language.text(Text::batch_rows_lost, {base::shown_path(path)}));
}

void save(Session& session, const std::string& path) {
    std::string notice;
    try {
        back_up(session, path);
    } catch (const data::RunTimeError& error) {
        notice = session.language.text(Text::notice_backup_failed, {session.language.text(error)});
    }
    base::replace_file(path, data::write_provinces(session.provinces));
    session.provinces.mark_saved();
    if (!notice.empty())
        tell(notice);
}

std::vector<Problem> check_maps(const Session& session, const map::Maps& maps,
                                const ProvinceLines& lines) {
    for (const auto& path : {maps.map_1_path, maps.map_2_path}) {
        if (!path.empty())
            base::read_file(path, 1); // only the ID map is looked at, but a wrong name is an error
    }
    const map::MapImage image(maps.id_map_path);
    map::ProvincePlaces places(image);
    return check_on_map(session, maps, image, places, lines);
}

/// Prints what is wrong with the file's bytes and the table that has them. Returns whether
/// anything but hints was found.
bool print_problems(const Session& session, const CommandLine& line, const std::string& bytes) {
    auto [problems, lines] = check_file(bytes);
    const auto add = [&problems = problems](std::vector<Problem> further) {
        std::move(further.begin(), further.end(), std::back_inserter(problems));
    };
    add(check_values(session.provinces, session.language, lines));
    if (line.maps)
        add(check_maps(session, *line.maps, lines));
    for (const auto& problem : problems)
        print(line.csv_as_given + base::to_qstring(printed_line(problem, {}, session.language)));
    return !std::all_of(problems.begin(), problems.end(),
                        [](const Problem& problem) { return problem.is_hint; });
}

/// Prints in what the table differs from the earlier file. Returns whether it does.
bool print_differences(const Session& session, const std::string& path) {
    data::ProvinceTable before;
    read(path, base::read_file(path), before, data::BadLine::ends_reading, session.language);
    const auto differences = compare(before, session.provinces);
    for (const auto& difference : differences)
        print(base::to_qstring(printed_line(difference)));
    return !differences.empty();
}

int obey(const CommandLine& line, Session& session) {
    session.program_folder = program_folder(line.folder);
    if (line.check)
        start_up(session, SpriteSets::pass_over); // the value lists are the language file's
    const std::string bytes = base::read_file(*line.csv);
    // The check tells of lines that cannot be taken; a save would lose them.
    const bool may_lose_lines = line.check && !line.save;
    read(*line.csv, bytes, session.provinces,
         may_lose_lines ? data::BadLine::is_passed_over : data::BadLine::ends_reading,
         session.language);
    if (line.select)
        session.selection.apply(*line.select);
    for (const auto& assignment : line.assignments)
        assign(session.provinces, session.selection, assignment);

    bool found = false;
    if (line.save)
        save(session, *line.save);
    if (line.check)
        found = print_problems(session, line, bytes);
    if (line.diff)
        found = print_differences(session, *line.diff) || found;
    if (!std::cout.flush())
        throw std::runtime_error(session.language.text(Text::batch_output_failed));
    return found ? something_found : nothing_found;
}

} // namespace

int batch_run(const CommandLine& line) {
    Session session;
    try {
        return obey(line, session);
    } catch (const std::exception& error) {
        tell(session.language.text(error));
        return file_failed;
    }
}

} // namespace shell
