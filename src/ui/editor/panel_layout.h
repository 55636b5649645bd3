#pragma once

#include <array>
#include <span>
#include <string_view>

/// What stands where in the panel. Names, keys and captions are UTF-8; the captions are the ones of
/// design time, which the language file replaces.
namespace editor {

enum class BlockKind {
    field,     // a label and text fields
    numeric,   // a label, a text field and its slider
    list,      // a label and a drop-down list
    group,     // a titled frame of options
    boxes,     // a titled frame of check boxes
    box,       // one check box, captioned by a value list
    positions, // a label and read-only values
};

struct Block {
    BlockKind kind;
    std::string_view caption_key; // behind "MDIForm1."; empty for none
    std::string_view title;
    std::array<std::string_view, 3> controls; // object names, unused ones empty
    int row;                                  // in the tab's grid of three columns
    int column = 0;
    int column_span = 3;
    int options_in_row = 1;
    std::array<std::string_view, 22> captions{}; // of the options or boxes, an empty one ends them
    std::string_view unit{};                     // behind a text field
};

struct Tab {
    std::string_view caption_key;
    std::string_view title;
    std::string_view frame; // object name
    std::span<const Block> blocks;
};

/// The five tabs in their order.
extern const std::array<Tab, 5> tabs;

} // namespace editor
