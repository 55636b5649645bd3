#include "map_writer.h"

#include "map_colours.h"
#include "regions.h"

#include <algorithm>
#include <array>
#include <thread>

namespace sample {

namespace {

constexpr int band_rows = 32;
constexpr std::size_t threads = 2;
constexpr double steepness = 11; // how strongly slopes are shaded

/// What is known of the pixels of one row.
struct Row {
    std::vector<int> provinces;
    std::vector<double> heights;
    std::vector<double> moistures;
};

/// The rows of a band in each of the three pictures, the bottom row first.
struct Band {
    std::vector<std::uint8_t> relief;
    std::vector<std::uint8_t> political;
    std::vector<std::uint8_t> identification;
};

class Painter {
  public:
    Painter(const MapView& view, const PoliticalColours& political,
            const std::array<std::size_t, 3>& row_bytes)
        : view_(view), political_(political), row_bytes_(row_bytes) {
        for (std::size_t id = 0; id < view.world().provinces.size(); ++id)
            identification_.push_back(identification_colour(static_cast<int>(id)));
    }

    /// Paints the rows from `top` to the one before `bottom`.
    void paint(int top, int bottom, Band& band) const {
        const auto rows = static_cast<std::size_t>(bottom - top);
        band.relief.assign(rows * row_bytes_[0], 0);
        band.political.assign(rows * row_bytes_[1], 0);
        band.identification.assign(rows * row_bytes_[2], 0);
        Row below;
        read(std::min(bottom, view_.size().height - 1), below);
        Row row;
        for (int y = bottom - 1; y >= top; --y) {
            read(y, row);
            paint_row(y, row, below, static_cast<std::size_t>(bottom - 1 - y), band);
            std::swap(row, below);
        }
    }

  private:
    void read(int y, Row& row) const {
        row.provinces.resize(static_cast<std::size_t>(view_.size().width));
        for (int x = 0; x < view_.size().width; ++x)
            row.provinces[static_cast<std::size_t>(x)] = view_.province(x, y);
        view_.read_row(y, row.heights, row.moistures);
    }

    Ground ground(int province) const {
        return view_.world().provinces[static_cast<std::size_t>(province)].ground;
    }

    /// Returns what lies between a province and another one.
    Border border(int province, int other) const {
        if (province == other)
            return Border::none;
        const Ground one = ground(province);
        const Ground two = ground(other);
        if (one == Ground::river || two == Ground::river)
            return Border::none;
        if (one != two)
            return Border::coast;
        return political_.fill[static_cast<std::size_t>(province)] ==
                       political_.fill[static_cast<std::size_t>(other)]
                   ? Border::province
                   : Border::nation;
    }

    void paint_row(int y, const Row& row, const Row& below, std::size_t line, Band& band) const {
        const double latitude = latitude_of((y + 0.5) * chart_height / view_.size().height);
        const double rise = steepness / view_.unit();
        const std::size_t last = row.provinces.size() - 1;
        std::uint8_t* relief = &band.relief[line * row_bytes_[0]];
        std::uint8_t* political = &band.political[line * row_bytes_[1]];
        std::uint8_t* identification = &band.identification[line * row_bytes_[2]];
        for (std::size_t x = 0; x <= last; ++x, relief += 3, identification += 3) {
            const std::size_t right = std::min(x + 1, last);
            const int province = row.provinces[x];
            const Border edge = std::max(border(province, row.provinces[right]),
                                         border(province, below.provinces[x]));
            const double slope =
                (row.heights[right] - row.heights[x]) + (below.heights[x] - row.heights[x]);
            const double light = std::clamp(0.5 + slope * rise, 0.0, 1.0);
            put_pixel(relief, relief_colour(ground(province), row.heights[x], row.moistures[x],
                                            latitude, light, edge));
            political[x] = political_.index(province, edge);
            put_pixel(identification, identification_[static_cast<std::size_t>(province)]);
        }
    }

    const MapView& view_;
    const PoliticalColours& political_;
    std::array<std::size_t, 3> row_bytes_;
    std::vector<Colour> identification_;
};

} // namespace

void write_maps(const MapView& view, const std::filesystem::path& folder) {
    const PoliticalColours political(view.world());
    BitmapWriter relief_file(folder / "map1.bmp", view.size());
    BitmapWriter political_file(folder / "map2.bmp", view.size(), political.palette);
    BitmapWriter identification_file(folder / "idmap.bmp", view.size());
    const Painter painter(
        view, political,
        {relief_file.row_bytes(), political_file.row_bytes(), identification_file.row_bytes()});

    std::array<Band, threads> bands;
    for (int bottom = view.size().height; bottom > 0;) {
        std::vector<std::jthread> workers;
        for (std::size_t index = 0; index < threads && bottom > 0; ++index) {
            const int top = std::max(0, bottom - band_rows);
            workers.emplace_back([&painter, top, bottom, &band = bands[index]] {
                painter.paint(top, bottom, band);
            });
            bottom = top;
        }
        for (std::size_t index = 0; index < workers.size(); ++index) {
            workers[index].join();
            relief_file.write_rows(bands[index].relief);
            political_file.write_rows(bands[index].political);
            identification_file.write_rows(bands[index].identification);
        }
    }
    relief_file.close();
    political_file.close();
    identification_file.close();
}

} // namespace sample
