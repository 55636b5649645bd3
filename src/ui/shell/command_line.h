#pragma once

#include "map/maps.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <variant>

namespace shell {

/// What the command line asks for. Paths are stored paths, texts Windows-1252 bytes.
struct CommandLine {
    std::optional<std::string> folder;
    std::optional<std::string> csv;
    std::optional<map::Maps> maps;
    std::optional<std::string> select;
    std::optional<QString> screenshot; // native path
};

/// Text to print instead of starting, and where it belongs.
struct PrintAndEnd {
    QString text;
    bool is_error;
};

/// Reads the program's arguments, the first one being its name.
std::variant<CommandLine, PrintAndEnd> read_command_line(const QStringList& arguments);

} // namespace shell
