#pragma once

#include "files.h"

#include <filesystem>
#include <vector>

namespace sample {

/// Returns the colour made darker (below 1) or lighter (above 1).
Colour shaded(Colour colour, double factor);

/// A small picture on the colour that the editor takes for transparent. What lies outside of it is
/// not drawn.
class Canvas {
  public:
    static constexpr Colour background = {255, 0, 255};

    explicit Canvas(Size pixels) : pixels_(pixels, background) {}

    Size size() const { return pixels_.size; }
    void dot(int x, int y, Colour colour);
    void box(int x, int y, int width, int height, Colour colour);
    void line(int x, int y, int to_x, int to_y, Colour colour);

    /// Draws a filled ellipse that is lit from the upper left.
    void ball(int x, int y, int radius_x, int radius_y, Colour colour);

    /// Draws a filled triangle that stands on `base_y`, its left side lit, its right one in shade.
    void peak(int x, int top_y, int base_y, int half_width, Colour colour);

    /// Returns the picture with a dark line around all that is drawn.
    Canvas outlined(Colour colour) const;

    /// Writes a 24-bit bitmap. Throws std::runtime_error.
    void write(const std::filesystem::path& path) const { write_bitmap(path, pixels_, size()); }

  private:
    Colour at(int x, int y) const;

    Grid<Colour> pixels_;
};

} // namespace sample
