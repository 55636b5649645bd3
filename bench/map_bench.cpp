#include "base/stored_path.h"
#include "map/form1.h"
#include "map/map_image.h"
#include "map_colours.h"
#include "shell/session.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

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
        state.counters["MB"] = memory() - before;
    }
}
BENCHMARK(memory_of_three_maps)->Unit(benchmark::kMillisecond)->Iterations(1);

void open_three_maps(benchmark::State& state) {
    const auto session = session_with_maps();
    shown_window(*session);
    for ([[maybe_unused]] auto _ : state)
        shown_window(*session);
}
BENCHMARK(open_three_maps)->Unit(benchmark::kMillisecond);

void paint_a_random_place(benchmark::State& state, const char* selection, map::Mode mode) {
    const auto session = session_with_maps();
    session->selection.apply(selection);
    session->mode = mode;
    std::mt19937 random(1);
    for (int province = 1; province <= data::last_province; ++province) {
        session->provinces.load(province, data::table_column(data::column::city_x),
                                std::to_string(random() % map_width));
        session->provinces.load(province, data::table_column(data::column::city_y),
                                std::to_string(random() % map_height));
    }
    const auto window = shown_window(*session);
    auto* area = window->findChild<QScrollArea*>();
    RandomPlace place;
    for ([[maybe_unused]] auto _ : state) {
        const QPoint corner = place.next();
        area->horizontalScrollBar()->setValue(corner.x());
        area->verticalScrollBar()->setValue(corner.y());
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(paint_a_random_place, map_alone, "", map::Mode::normal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paint_a_random_place, all_dots, "1-2018", map::Mode::normal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paint_a_random_place, city_markers, "", map::Mode::ville)
    ->Unit(benchmark::kMillisecond);

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
BENCHMARK(dots_of_all_provinces)->Unit(benchmark::kMillisecond);

void send(QWidget* surface, QEvent::Type type, QPoint point, Qt::MouseButtons held) {
    QMouseEvent event(type, point, surface->mapToGlobal(point), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &event);
}

void click_to_dots_painted(benchmark::State& state) {
    const auto session = session_with_maps();
    const auto window = shown_window(*session);
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
BENCHMARK(click_to_dots_painted)->Unit(benchmark::kMillisecond);

} // namespace
