#include "base/stored_path.h"
#include "gfx/terrain_art.h"
#include "map/overlay_preview.h"
#include "map/position_columns.h"

#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

/// What the overlay preview adds to a painting: all provinces have positions, and the whole view is
/// painted.
namespace {

using map::Mode;

constexpr QSize map_size(18944, 7296);
constexpr QSize view_size(1920, 1080);
constexpr int frames = 4;

QImage picture(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    painter.setBrush(Qt::darkGreen);
    painter.drawEllipse(image.rect().adjusted(2, 2, -3, -3));
    return image;
}

struct World {
    World(Mode mode, QSize spread) {
        session.mode = mode;
        session.configuration.terrain_art_folder = base::stored_path(folder.path());
        session.configuration.terrain_art_flag = 1;
        session.port_placement = {1, 1};
        save_pictures();
        constexpr int columns = 53; // of a grid of 2,018 provinces
        constexpr int rows = 39;
        for (int province = 1; province <= data::last_province; ++province) {
            const int x = (province - 1) % columns * spread.width() / columns;
            const int y = (province - 1) / columns * spread.height() / rows;
            place(province, x, y);
        }
    }

    void save_pictures() {
        const QString sprite = folder.filePath(QStringLiteral("sprite.bmp"));
        picture(frames * 48, 64).save(sprite);
        for (const auto& kind : gfx::sprite_kinds)
            session.graphics.sprites.of(kind.kind).rows[0] = {base::stored_path(sprite), "set", 24,
                                                              50, frames};
        for (const auto type : gfx::terrain_types) {
            if (type == gfx::terrain_types.back())
                continue; // plains are optional
            for (int variant = 0; variant < gfx::terrain_variants; ++variant)
                picture(96, 64).save(
                    folder.filePath(QString::fromStdString(gfx::terrain_art_file(type, variant))));
        }
    }

    void load(int province, data::FileColumn column, int number) {
        session.provinces.load(province, data::table_column(column), std::to_string(number));
    }

    void place(int province, int x, int y) {
        load(province, data::column::climate, province % 9);
        load(province, data::column::terrain, province % 7);
        load(province, data::column::port_sea, 1 + (province * 7) % data::last_province);
        for (const auto& columns : map::position_columns) {
            const int number =
                columns.drawing == map::PositionColumns::no_drawing ? 0 : columns.drawing;
            load(province, columns.x, x + 30 * number);
            load(province, columns.y, y + 10 * number);
            if (columns.mode == Mode::dessin)
                load(province, columns.variant(), province % 8);
        }
    }

    QTemporaryDir folder;
    shell::Session session;
};

void paint_overlay(benchmark::State& state, Mode mode, QSize spread) {
    const World world(mode, spread);
    map::OverlayPreview preview(world.session);
    QImage surface(view_size, QImage::Format_RGB32);
    const QRect exposed(QPoint((spread.width() - view_size.width()) / 2,
                               (spread.height() - view_size.height()) / 2),
                        view_size);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&surface);
        painter.translate(-exposed.topLeft());
        preview.ajout_graph(painter, exposed, {}, 1000);
    }
}

constexpr auto unit = benchmark::kMillisecond;

// The provinces lie all over the map.
BENCHMARK_CAPTURE(paint_overlay, cities, Mode::ville, map_size)->Unit(unit);
BENCHMARK_CAPTURE(paint_overlay, ports, Mode::port, map_size)->Unit(unit);
BENCHMARK_CAPTURE(paint_overlay, drawings, Mode::dessin, map_size)->Unit(unit);

// The worst case: all of them lie in the view.
BENCHMARK_CAPTURE(paint_overlay, crowded_cities, Mode::ville, view_size)->Unit(unit);
BENCHMARK_CAPTURE(paint_overlay, crowded_ports, Mode::port, view_size)->Unit(unit);
BENCHMARK_CAPTURE(paint_overlay, crowded_drawings, Mode::dessin, view_size)->Unit(unit);

} // namespace
