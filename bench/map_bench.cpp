#include "base/stored_path.h"
#include "map/field_colours.h"
#include "map/form1.h"
#include "map/map_image.h"
#include "map/map_view.h"
#include "map/province_places.h"
#include "map/strips.h"
#include "map_colours.h"
#include "shell/session.h"

#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QThread>

#include <array>
#include <benchmark/benchmark.h>
#include <fstream>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <vector>

/// The largest maps that users have, in three bitmaps of 415 MB.
namespace {

constexpr int map_width = 18944;
constexpr int map_height = 7296;
constexpr QSize view(1920, 1080);

/// Returns a picture with a cell for each square of a province, so that all of them exist.
sample::Grid<sample::Colour> squares() {
    sample::Grid<sample::Colour> picture({73, 28});
    for (int cell = 0; cell < picture.cells(); ++cell)
        picture[cell] = sample::identification_colour(cell % data::last_province + 1);
    return picture;
}

/// The three maps, made for the first benchmark that needs them and deleted at the end.
class World {
  public:
    World() {
        for (auto& path : paths_) {
            const auto number = &path - paths_.data();
            const QString file_name = folder_.filePath(QString::number(number) + ".bmp");
            sample::write_bitmap(file_name.toStdString(), squares(), {map_width, map_height});
            path = base::stored_path(file_name);
        }
    }

    map::Maps maps() const { return {paths_[0], paths_[1], paths_[2], 0, 0}; }

  private:
    QTemporaryDir folder_;
    std::array<std::string, 3> paths_;
};

const World& world() {
    static const World the_world;
    return the_world;
}

std::unique_ptr<shell::Session> session_with_maps() {
    auto session = std::make_unique<shell::Session>();
    session->maps = world().maps();
    return session;
}

std::unique_ptr<map::Form1> shown_window(shell::Session& session) {
    auto window = std::make_unique<map::Form1>(session);
    window->resize(view);
    window->show();
    QCoreApplication::processEvents();
    return window;
}

/// Returns a window that has nothing more to do in the idle time.
std::unique_ptr<map::Form1> ready_window(shell::Session& session) {
    auto window = shown_window(session);
    window->places().index();
    return window;
}

QWidget* shown_surface(const map::Form1& window) {
    return window.findChild<QWidget*>(QStringLiteral("Picture1"));
}

/// Returns the process's own memory in MB.
double memory() {
    std::ifstream statm("/proc/self/statm");
    double all_pages = 0;
    double resident = 0;
    double shared = 0;
    statm >> all_pages >> resident >> shared;
    return (resident - shared) * 4096 / 1e6;
}

class RandomPlace {
  public:
    QPoint next() {
        return {static_cast<int>(random_() % (map_width - static_cast<unsigned>(view.width()))),
                static_cast<int>(random_() % (map_height - static_cast<unsigned>(view.height())))};
    }

  private:
    std::mt19937 random_{1};
};

constexpr auto unit = benchmark::kMillisecond;

/// Stands before the others: memory that they gave back would serve it, and not be counted.
void memory_of_three_maps(benchmark::State& state) {
    const auto session = session_with_maps();
    for ([[maybe_unused]] auto _ : state) {
        const double before = memory();
        const auto window = shown_window(*session);
        for (const auto shown :
             {map::ShownMap::map_2, map::ShownMap::id_map, map::ShownMap::map_1}) {
            window->show_map(shown);
            QCoreApplication::processEvents();
        }
        session->selection.apply("1-2018");
        window->selection_or_mode_changed();
        QCoreApplication::processEvents();
        for (int power = map::ZoomLevel::smallest; power <= map::ZoomLevel::largest; ++power) {
            window->view().set_level(map::ZoomLevel(power));
            QCoreApplication::processEvents();
        }
        state.counters["MB"] = memory() - before;
    }
}
BENCHMARK(memory_of_three_maps)->Unit(unit)->Iterations(1);

void open_three_maps(benchmark::State& state) {
    const auto session = session_with_maps();
    shown_window(*session);
    for ([[maybe_unused]] auto _ : state)
        shown_window(*session);
}
BENCHMARK(open_three_maps)->Unit(unit);

/// Gives every province a city somewhere on the map.
void place_cities(data::ProvinceTable& provinces) {
    std::mt19937 random(1);
    for (int province = 1; province <= data::last_province; ++province) {
        provinces.load(province, data::table_column(data::column::city_x),
                       std::to_string(random() % map_width));
        provinces.load(province, data::table_column(data::column::city_y),
                       std::to_string(random() % map_height));
    }
}

/// At the level whose power of two is the argument.
void paint_random_places(benchmark::State& state, map::Form1& window) {
    window.view().set_level(map::ZoomLevel(static_cast<int>(state.range(0))));
    QCoreApplication::processEvents();
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state) {
        window.view().centre_on(place.next());
        window.view().repaint_maps(); // a map that is smaller than the view does not move
        QCoreApplication::processEvents();
    }
}

void paint_a_random_place(benchmark::State& state, const char* selection, map::Mode mode) {
    const auto session = session_with_maps();
    session->selection.apply(selection);
    session->mode = mode;
    place_cities(session->provinces);
    const auto window = ready_window(*session);
    paint_random_places(state, *window);
}
void all_levels(benchmark::internal::Benchmark* bench) {
    bench->Unit(unit)
        ->Arg(0)
        ->DenseRange(map::ZoomLevel::smallest, -1)
        ->DenseRange(1, map::ZoomLevel::largest);
}
BENCHMARK_CAPTURE(paint_a_random_place, map_alone, "", map::Mode::normal)->Apply(all_levels);
BENCHMARK_CAPTURE(paint_a_random_place, all_dots, "1-2018", map::Mode::normal)->Apply(all_levels);
BENCHMARK_CAPTURE(paint_a_random_place, city_markers, "", map::Mode::ville)->Apply(all_levels);

std::shared_ptr<const map::FieldColours> colours_by_culture(const data::ProvinceTable& provinces) {
    const std::vector<std::string> codes(109, "none"); // those below are none of them
    return std::make_shared<map::FieldColours>(
        provinces, editor::fields[data::field_number(data::column::culture)], codes, "5");
}

void give_cultures(data::ProvinceTable& provinces, int first) {
    for (int province = 1; province <= data::last_province; ++province)
        provinces.write(province, data::table_column(data::column::culture),
                        "culture" + std::to_string((province + first) % 109));
}

void paint_a_random_place_coloured(benchmark::State& state) {
    const auto session = session_with_maps();
    give_cultures(session->provinces, 0);
    const auto window = ready_window(*session);
    window->colour(colours_by_culture(session->provinces));
    paint_random_places(state, *window);
}
BENCHMARK(paint_a_random_place_coloured)->Apply(all_levels);

void recolour_after_an_edit_of_all_provinces(benchmark::State& state) {
    const auto session = session_with_maps();
    const auto window = shown_window(*session);
    int first = 0;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        give_cultures(session->provinces, ++first);
        state.ResumeTiming();
        window->colour(colours_by_culture(session->provinces));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(recolour_after_an_edit_of_all_provinces)->Unit(unit);

/// From a level to the next smaller one, whose power of two is the argument, or back; with all
/// dots.
void zoom_step_to_painted(benchmark::State& state) {
    const auto session = session_with_maps();
    session->selection.apply("1-2018");
    const auto window = ready_window(*session);
    window->view().centre_on({map_width / 2, map_height / 2});
    const int power = static_cast<int>(state.range(0));
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        window->view().set_level(map::ZoomLevel(power + step));
        step = 1 - step;
        QCoreApplication::processEvents();
    }
}
BENCHMARK(zoom_step_to_painted)
    ->Unit(unit)
    ->DenseRange(map::ZoomLevel::smallest, map::ZoomLevel::largest - 1);

/// What painting costs without a window: the argument is the zoom level's power of two.
void read_a_view(benchmark::State& state) {
    const map::MapImage image(world().maps().map_1_path);
    const map::ZoomLevel level(static_cast<int>(state.range(0)));
    const QRect map(0, 0, level.shown_length(map_width), level.shown_length(map_height));
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state) {
        const QPoint corner =
            map.contains(QRect({0, 0}, view)) ? place.next() / level.step() : QPoint();
        const QRect shown = QRect(corner, view) & map;
        map::MapReader first(image);
        map::read_strips(
            shown, level, QThread::idealThreadCount(), first,
            [&] { return std::make_unique<map::MapReader>(image); },
            [](const QRect&, const QImage& part) { benchmark::DoNotOptimize(part.constBits()); });
    }
}
BENCHMARK(read_a_view)->Apply(all_levels);

/// What no painting at level 1 can do without: the bytes of a view.
void plain_reads_of_a_view(benchmark::State& state) {
    QFile file(base::native_path(world().maps().map_1_path));
    file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    constexpr qint64 bytes_per_row = 3 * map_width;
    std::vector<char> row(3 * static_cast<std::size_t>(view.width()));
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state) {
        const QPoint corner = place.next();
        for (int y = corner.y(); y < corner.y() + view.height(); ++y) {
            file.seek(54 + y * bytes_per_row + 3 * corner.x());
            benchmark::DoNotOptimize(file.read(row.data(), static_cast<qint64>(row.size())));
        }
    }
}
BENCHMARK(plain_reads_of_a_view)->Unit(unit);

void province_under_the_pointer(benchmark::State& state) {
    const map::MapImage image(world().maps().id_map_path);
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(
            map::province_of(map::MapReader(image).colour_at(place.next()).value_or(0)));
}
BENCHMARK(province_under_the_pointer)->Unit(benchmark::kMicrosecond);

void dots_of_all_provinces(benchmark::State& state) {
    const map::MapImage image(world().maps().id_map_path);
    editor::Selection selection;
    selection.apply("1-2018");
    for ([[maybe_unused]] auto _ : state) {
        map::MapReader reader(image);
        const map::SelectionDots dots(map_width, map_height, selection,
                                      [&reader](int y, std::span<map::Pixel> pixels) {
                                          reader.read_row(y, 0, map::dot_spacing, pixels);
                                      });
        state.counters["samples"] = dots.columns() * dots.rows();
        benchmark::DoNotOptimize(dots.has_dot(0, 0));
    }
}
BENCHMARK(dots_of_all_provinces)->Unit(unit);

void send(QWidget* surface, QEvent::Type type, QPoint point, Qt::MouseButtons held) {
    QMouseEvent event(type, point, surface->mapToGlobal(point), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &event);
}

void click_to_dots_painted(benchmark::State& state) {
    const auto session = session_with_maps();
    const auto window = ready_window(*session);
    QObject::connect(window.get(), &map::Form1::province_clicked, window.get(), [&](int province) {
        session->selection.apply(std::to_string(province));
        window->selection_or_mode_changed();
    });
    QWidget* surface = shown_surface(*window);
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state) {
        const QPoint point(place.next().x() % view.width(), 500);
        send(surface, QEvent::MouseButtonPress, point, Qt::LeftButton);
        send(surface, QEvent::MouseButtonRelease, point, Qt::NoButton);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(click_to_dots_painted)->Unit(unit);

void index_of_all_provinces(benchmark::State& state) {
    const map::MapImage image(world().maps().id_map_path);
    for ([[maybe_unused]] auto _ : state) {
        const double before = memory();
        map::ProvincePlaces places(image);
        benchmark::DoNotOptimize(places.index().place(1));
        state.counters["MB"] = memory() - before;
    }
}
BENCHMARK(index_of_all_provinces)->Unit(unit);

/// What a row of the index takes is what a slice may exceed its time by.
void slice_of_the_index(benchmark::State& state) {
    const map::MapImage image(world().maps().id_map_path);
    map::ProvincePlaces places(image);
    places.read_while_idle();
    for ([[maybe_unused]] auto _ : state) {
        QCoreApplication::processEvents();
        if (places.complete_index())
            places.restart();
    }
}
BENCHMARK(slice_of_the_index)->Unit(unit);

/// `around` surrounds the middle of the map without a pixel in it: the ID map must be read.
void selection_to_moved_view_painted(benchmark::State& state, const std::string& around) {
    const auto session = session_with_maps();
    const auto window = ready_window(*session);
    window->view().set_level(map::ZoomLevel(static_cast<int>(state.range(0))));
    std::mt19937 random(1);
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        window->view().centre_on({map_width / 2, map_height / 2});
        QCoreApplication::processEvents();
        state.ResumeTiming();
        session->selection.apply(around.empty() ? std::to_string(27 + random() % 1900) : around);
        window->selection_or_mode_changed();
        window->follow_selection();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(selection_to_moved_view_painted, one, "")->Apply(all_levels);
BENCHMARK_CAPTURE(selection_to_moved_view_painted, all_around, "1")->Apply(all_levels);

} // namespace
