#pragma once

#include "map/maps.h"
#include "map/mode.h"
#include "map/zoom_level.h"
#include "shell/assignment.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace shell {

/// The picture of the main frame that a run paints.
struct Screenshot {
    QString file;              // native path
    std::optional<QSize> size; // of the frame, in pixels
    std::optional<int> page;   // of the panel, counted from 0
    std::optional<map::Mode> mode;
    std::optional<map::ZoomLevel> level;
    std::optional<data::FieldNumber> colour; // by this field
};

/// What the command line asks for. Paths are stored paths, texts Windows-1252 bytes.
struct CommandLine {
    std::optional<std::string> folder;
    std::optional<std::string> csv;
    QString csv_as_given;
    std::optional<map::Maps> maps;
    std::optional<std::string> select;
    std::vector<Assignment> assignments; // into the selected provinces
    std::optional<Screenshot> screenshot;

    // What is done without a window.
    std::optional<std::string> save;
    bool check = false;
    std::optional<std::string> diff;

    bool needs_window() const { return !save && !check && !diff; }
};

/// Text to print instead of starting, and where it belongs.
struct PrintAndEnd {
    QString text;
    bool is_error;
};

/// Returns whether an argument looks like an option that is done without a window, so that it is
/// worth reading the command line before the system is asked for one.
bool may_need_no_window(std::span<char* const> arguments);

/// Reads the program's arguments, the first one being its name.
std::variant<CommandLine, PrintAndEnd> read_command_line(const QStringList& arguments);

} // namespace shell
