#include "shell/command_line.h"

#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/numbers.h"
#include "data/run_time_error.h"

#include <QCommandLineParser>

#include <array>

namespace shell {

namespace {

struct Option {
    const char* name;
    const char* value;
    const char* help;
};

constexpr Option folder{"folder", "DIR", "folder of config.txt and the language files"};
constexpr Option csv{"csv", "FILE", "province file to open"};
constexpr Option map_1{"map1", "FILE", "bitmap of map 1 (together with --id-map)"};
constexpr Option map_2{"map2", "FILE", "bitmap of map 2"};
constexpr Option id_map{"id-map", "FILE", "bitmap whose colours are province identifiers"};
constexpr Option offset{"offset", "X,Y", "where the maps lie in the game's coordinates, in pixels"};
constexpr Option select_option{"select", "TEXT", "provinces to select, such as 12;15;20-25"};
constexpr Option screenshot{"screenshot", "FILE", "paint the main frame into a PNG file and end"};
constexpr Option help{"help", nullptr, "show this text and end"};
constexpr Option version{"version", nullptr, "show the version and end"};
constexpr std::array options = {&folder, &csv,           &map_1,      &map_2, &id_map,
                                &offset, &select_option, &screenshot, &help,  &version};

class Arguments {
  public:
    Arguments() {
        for (const Option* option : options)
            parser_.addOption({QString::fromLatin1(option->name), QString::fromLatin1(option->help),
                               QString::fromLatin1(option->value)});
    }

    bool parse(const QStringList& arguments) { return parser_.parse(arguments); }
    bool has(const Option& option) const { return parser_.isSet(QString::fromLatin1(option.name)); }
    QString value(const Option& option) const {
        return parser_.value(QString::fromLatin1(option.name));
    }
    std::optional<std::string> path(const Option& option) const {
        return has(option) ? std::optional(base::stored_path(value(option))) : std::nullopt;
    }

    PrintAndEnd wrong_use(const QString& reason) const {
        return {reason + QStringLiteral("\n\n") + parser_.helpText(), true};
    }
    PrintAndEnd usage() const { return {parser_.helpText(), false}; }
    QString error() const {
        return parser_.positionalArguments().isEmpty()
                   ? parser_.errorText()
                   : QStringLiteral("Unexpected argument '%1'.")
                         .arg(parser_.positionalArguments().constFirst());
    }

  private:
    QCommandLineParser parser_;
};

/// Reads "X,Y" as the map files dialog reads its two fields.
void read_offset(const QString& text, map::Maps& maps) {
    const auto comma = text.indexOf(QLatin1Char(','));
    maps.x_offset = data::leading_number(base::to_bytes(text.left(comma)));
    maps.y_offset =
        data::to_int16(data::leading_number(base::to_bytes(text.mid(comma + 1))), "--offset");
}

} // namespace

std::variant<CommandLine, PrintAndEnd> read_command_line(const QStringList& arguments) {
    Arguments given;
    if (!given.parse(arguments) || !given.error().isEmpty())
        return given.wrong_use(given.error());
    if (given.has(help))
        return given.usage();
    if (given.has(version))
        return PrintAndEnd{QStringLiteral("Province Editor " PROVINCE_EDITOR_VERSION "\n"), false};

    CommandLine line;
    line.folder = given.path(folder);
    line.csv = given.path(csv);
    if (given.has(select_option))
        line.select = base::to_bytes(given.value(select_option));
    if (given.has(screenshot))
        line.screenshot = given.value(screenshot);

    if (given.has(map_1) != given.has(id_map) || (given.has(map_2) && !given.has(map_1)))
        return given.wrong_use(QStringLiteral("--map1 and --id-map are needed together."));
    if (given.has(offset) && (!given.has(map_1) || !given.value(offset).contains(QLatin1Char(','))))
        return given.wrong_use(QStringLiteral("--offset needs X,Y and the maps."));
    if (!given.has(map_1))
        return line;

    auto& maps = line.maps.emplace();
    maps.map_1_path = *given.path(map_1);
    maps.map_2_path = given.path(map_2).value_or(std::string());
    maps.id_map_path = *given.path(id_map);
    try {
        if (given.has(offset))
            read_offset(given.value(offset), maps);
    } catch (const data::RunTimeError& error) {
        return given.wrong_use(base::to_qstring(error.place()));
    }
    return line;
}

} // namespace shell
