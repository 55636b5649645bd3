#include "map/identification.h"
#include "map/outline.h"
#include "map/selection_places.h"
#include "support/bitmaps.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

/// A map of letters: "A" is province 1, "Z" identifier 3000, "." no pixel.
class LetterMap {
  public:
    explicit LetterMap(const std::vector<std::string>& letters) {
        for (const auto& line : letters) {
            std::vector<map::Pixel> row;
            for (const char letter : line) {
                const int identifier = letter == 'Z' ? 3000 : letter - '@';
                row.push_back(letter == '.' ? map::no_pixel
                                            : 0xFF000000 | bitmaps::colour_of(identifier));
            }
            index.add_row(static_cast<int>(rows_.size()), row);
            rows_.push_back(row);
        }
    }

    map::ReadRow reader() {
        return [this](int y, int first_x, int step, std::span<map::Pixel> pixels) {
            read.insert(y);
            auto x = static_cast<std::size_t>(first_x);
            for (auto& pixel : pixels) {
                pixel = rows_.at(static_cast<std::size_t>(y)).at(x);
                x += static_cast<std::size_t>(step);
            }
        };
    }

    map::ProvinceIndex index;
    std::set<int> read; // rows

  private:
    std::vector<std::vector<map::Pixel>> rows_;
};

editor::Selection selected(std::string_view text) {
    editor::Selection selection;
    selection.apply(text);
    return selection;
}

TEST(SelectionPlaces, AreThoseOfTheSelectedProvinces) {
    LetterMap letters({"A..BB", "ACCCB", "ZZZAA"});
    EXPECT_EQ(map::box_of(letters.index, selected("2;3")), (map::Box{1, 0, 4, 1}));
    EXPECT_EQ(map::box_of(letters.index, selected("3;40")), (map::Box{1, 1, 3, 1}));
    EXPECT_EQ(map::box_of(letters.index, selected("40")), std::nullopt);
    EXPECT_EQ(map::first_place(letters.index, selected("3;40")), letters.index.place(3));
    EXPECT_EQ(map::first_place(letters.index, selected("40")), nullptr);
    const map::Box view{3, 1, 3, 2}; // in both boxes, with a pixel of the first one
    EXPECT_TRUE(map::is_in_view(letters.index, selected("1;2"), view, 1, letters.reader()));
}

TEST(SelectionPlaces, InViewIsWhatHasAPixelThere) {
    std::vector<std::string> ring(60, "A" + std::string(60, 'B') + "A");
    ring.front() = ring.back() = std::string(62, 'A');
    ring[30][31] = 'C';
    LetterMap letters(ring);
    struct Row {
        const char* selection;
        map::Box view;
        int step;
        bool is_in_view;
        std::size_t rows_read;
    };
    for (const Row& row : {
             Row{"3", {0, 0, 40, 40}, 1, true, 0},      // all of it
             Row{"3", {0, 0, 30, 40}, 1, false, 0},     // none
             Row{"40", {0, 0, 61, 59}, 1, false, 0},    // not on the map
             Row{"1", {1, 1, 60, 58}, 1, false, 58},    // inside the ring
             Row{"1;3", {1, 1, 60, 58}, 1, true, 0},    // and the other one is there
             Row{"1", {1, 1, 61, 58}, 1, true, 1},      // the ring's right edge
             Row{"1", {1, 0, 20, 58}, 1, true, 1},      // its upper one
             Row{"1", {1, 1, 20, 59}, 1, true, 59},     // its lower one, found in the last row
             Row{"1", {1, 1, 60, 58}, 8, false, 7},     // a view that shows every eighth row
             Row{"2", {0, 3, 0, 40}, 1, false, 0},      // beside it
             Row{"1-40", {-9, -9, 99, 99}, 1, true, 0}, // a view larger than the map
         }) {
        SCOPED_TRACE(std::string(row.selection) + " " + std::to_string(row.view.right));
        letters.read.clear();
        EXPECT_EQ(map::is_in_view(letters.index, selected(row.selection), row.view, row.step,
                                  letters.reader()),
                  row.is_in_view);
        EXPECT_EQ(letters.read.size(), row.rows_read);
    }
}

TEST(Outline, GoesRoundPartsAndHoles) {
    LetterMap letters({"B.AAA", "AAABA", "..AAA"});
    const auto outline = [&](std::size_t most_lines) {
        std::string text;
        for (const auto& line :
             map::outline_of(1, letters.index.place(1)->box, most_lines, letters.reader()))
            text += std::to_string(line.from_x) + "," + std::to_string(line.from_y) + "-" +
                    std::to_string(line.to_x) + "," + std::to_string(line.to_y) + " ";
        return text;
    };
    EXPECT_EQ(outline(100), "2,0-5,0 2,0-2,1 5,0-5,1 "
                            "0,1-2,1 3,1-4,1 0,1-0,2 3,1-3,2 4,1-4,2 5,1-5,2 "
                            "0,2-2,2 3,2-4,2 2,2-2,3 5,2-5,3 "
                            "2,3-5,3 ");
    EXPECT_EQ(outline(5), "0,0-5,0 0,3-5,3 0,0-0,3 5,0-5,3 ") << "the box";
}

} // namespace
