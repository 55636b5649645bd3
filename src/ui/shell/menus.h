#pragma once

#include "shell/language.h"

#include <optional>
#include <span>
#include <string_view>

namespace shell {

class MDIForm1;

/// A menu of the main frame, or an item of one. Names and captions are UTF-8; the captions are the
/// ones of design time, which the language file replaces by the caption of "MDIForm1." and the
/// name.
struct MenuItem {
    std::string_view parent; // empty: stands in the menu bar
    std::string_view name;   // object name
    std::string_view caption;
    void (*command)(MDIForm1&) = nullptr; // none: the item is a menu
    std::string_view shortcuts = {};      // separated by "; "
    bool checkable = false;
    bool after_separator = false;
    std::optional<Text> text = {}; // of an item whose caption is a text of our own
};

/// Returns what the caption of the item or menu does not say, as a tool tip; nothing where it says
/// it all.
std::optional<Text> menu_tip(std::string_view name);

/// All menus and items in their order; a menu stands before its items.
std::span<const MenuItem> menu_items();

} // namespace shell
