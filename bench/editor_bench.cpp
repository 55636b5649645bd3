#include "base/stored_path.h"
#include "data/province_file.h"
#include "editor/fields.h"
#include "editor/merged_values.h"
#include "editor/selection.h"
#include "shell/mdi_form1.h"
#include "shell/province_search.h"
#include "shell/recovery_copies.h"
#include "shell/session.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

/// The program's main job on a full province file: read, select, show, edit, write.
namespace {

constexpr auto all_provinces = "1-2018";

/// A full table of the users' size: 2,018 provinces in half a megabyte.
data::ProvinceTable full_table() {
    data::ProvinceTable table;
    for (int province = 1; province <= data::last_province; ++province) {
        const auto load = [&](data::TableColumn column, const std::string& text) {
            table.load(province, column, text);
        };
        for (data::TableColumn column{0}; column.index < data::first_unread.index; ++column.index)
            load(column, std::to_string(column.index * 7 % 40));
        const auto last_position = data::table_column(data::column::manufactory_y);
        for (auto column = data::table_column(data::column::city_x);
             column.index <= last_position.index; ++column.index)
            load(column, std::to_string(province * 3 + column.index * 100));
        const std::string number = std::to_string(province);
        load(data::table_column(data::column::name), "The province of number " + number);
        load(data::table_column(data::column::religion), "counterreformed");
        load(data::table_column(data::column::area), "Northern Highlands");
        load(data::table_column(data::column::city_name), "City of " + number);
    }
    return table;
}

void read_file(benchmark::State& state) {
    const std::string bytes = write_provinces(full_table());
    data::ProvinceTable table;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(data::read_provinces(bytes, table));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(read_file)->Unit(benchmark::kMillisecond);

void read_file_into_empty_table(benchmark::State& state) {
    const std::string bytes = write_provinces(full_table());
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        auto table = std::make_unique<data::ProvinceTable>();
        state.ResumeTiming();
        benchmark::DoNotOptimize(data::read_provinces(bytes, *table));
        state.PauseTiming();
        table.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(read_file_into_empty_table)->Unit(benchmark::kMillisecond);

void write_file(benchmark::State& state) {
    const auto table = full_table();
    std::size_t size = 0;
    for ([[maybe_unused]] auto _ : state) {
        const std::string bytes = write_provinces(table);
        size = bytes.size();
        benchmark::DoNotOptimize(bytes.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}
BENCHMARK(write_file)->Unit(benchmark::kMillisecond);

void merge_all_fields_of_all_provinces(benchmark::State& state) {
    // The worst case: no two provinces differ, so every cell is looked at.
    data::ProvinceTable table;
    for (int province = 1; province <= data::last_province; ++province) {
        for (data::TableColumn column{0}; column.index < data::table_columns; ++column.index)
            table.load(province, column, "the same text");
    }
    editor::Selection selection;
    selection.apply(all_provinces);
    for ([[maybe_unused]] auto _ : state)
        for (const auto& field : editor::fields)
            benchmark::DoNotOptimize(merged_value(table, selection, field.number));
}
BENCHMARK(merge_all_fields_of_all_provinces)->Unit(benchmark::kMicrosecond);

void write_a_value_into_all_provinces(benchmark::State& state) {
    auto table = full_table();
    editor::Selection selection;
    selection.apply(all_provinces);
    bool other = false;
    for ([[maybe_unused]] auto _ : state) {
        changement(table, selection, other ? "12" : "a rather long text for a cell", {1});
        other = !other;
    }
}
BENCHMARK(write_a_value_into_all_provinces)->Unit(benchmark::kMicrosecond);

void find_provinces(benchmark::State& state) {
    const auto table = full_table();
    const shell::LanguageTexts language;
    // The worst case: every province has another value, and the text ends each of them.
    const shell::Search by_name = {{}, shell::Comparison::contains, "9"};
    const shell::Search by_number = {
        {shell::SearchTarget::Kind::column, data::field_number(data::column::city_x)},
        shell::Comparison::greater,
        "3000"};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(find_provinces(table, language, by_name));
        benchmark::DoNotOptimize(find_provinces(table, language, by_number));
    }
}
BENCHMARK(find_provinces)->Unit(benchmark::kMicrosecond);

/// The program's folder with the shipped language files.
class Program {
  public:
    Program() {
        const QString languages = QStringLiteral(LANGUAGES_FOLDER "/english.lng");
        QFile::copy(languages, folder_.filePath(QStringLiteral("english.lng")));
    }
    std::unique_ptr<shell::Session> session() const {
        auto session = std::make_unique<shell::Session>();
        session->program_folder = base::stored_path(folder_.path());
        return session;
    }

  private:
    QTemporaryDir folder_;
};

void apply_selection_until_the_panel_is_shown(benchmark::State& state) {
    const Program program;
    const auto session = program.session();
    shell::RecoveryCopies copies(*session);
    shell::MDIForm1 frame(*session, copies, shell::start_up(*session));
    session->provinces = full_table();
    frame.show();
    QApplication::processEvents();
    bool all = true;
    for ([[maybe_unused]] auto _ : state) {
        frame.select(all ? all_provinces : "5");
        QApplication::processEvents(); // paints
        all = !all;
    }
}
BENCHMARK(apply_selection_until_the_panel_is_shown)->Unit(benchmark::kMillisecond);

void type_into_the_search_until_the_results_are_shown(benchmark::State& state) {
    const Program program;
    const auto session = program.session();
    shell::RecoveryCopies copies(*session);
    shell::MDIForm1 frame(*session, copies, shell::start_up(*session));
    session->provinces = full_table();
    frame.show();
    frame.trouver();
    QApplication::processEvents();
    auto& text = *frame.findChild<QDialog*>(QStringLiteral("Form_recherche"))
                      ->findChild<QLineEdit*>(QStringLiteral("text"));
    bool more = false;
    for ([[maybe_unused]] auto _ : state) {
        text.setText(more ? QStringLiteral("pro") : QStringLiteral("prov")); // all have it
        if (state.range(0) != 0)
            QApplication::processEvents(); // paints
        more = !more;
    }
}
BENCHMARK(type_into_the_search_until_the_results_are_shown)
    ->ArgName("painted")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);

void start_until_the_main_frame_is_shown(benchmark::State& state) {
    const Program program;
    for ([[maybe_unused]] auto _ : state) {
        const auto session = program.session();
        shell::RecoveryCopies copies(*session);
        shell::MDIForm1 frame(*session, copies, shell::start_up(*session));
        frame.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(frame.isVisible());
    }
}
BENCHMARK(start_until_the_main_frame_is_shown)->Unit(benchmark::kMillisecond);

} // namespace
