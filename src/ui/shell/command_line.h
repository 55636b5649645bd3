#pragma once

#include "map/maps.h"
#include "shell/assignment.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace shell {

/// What the command line asks for. Paths are stored paths, texts Windows-1252 bytes.
struct CommandLine {
    std::optional<std::string> folder;
    std::optional<std::string> csv;
    QString csv_as_given;
    std::optional<map::Maps> maps;
    std::optional<std::string> select;
    std::vector<Assignment> assignments; // into the selected provinces
    std::optional<QString> screenshot;   // native path

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
