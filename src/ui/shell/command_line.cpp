#include "shell/command_line.h"

#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/numbers.h"
#include "data/run_time_error.h"
#include "editor/panel_layout.h"
#include "editor/selection.h"
#include "map/field_colours.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

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
constexpr Option picture_size{"size", "WIDTHxHEIGHT",
                              "size of the frame in the picture, in pixels"};
constexpr Option picture_tab{"tab", "N", "tab of the panel that is open in the picture, 1 to 5"};
constexpr Option picture_mode{
    "mode", "KIND",
    "mode of the map in the picture: normal, ville, armees, port, manuf or "
    "dessin"};
constexpr Option picture_zoom{"zoom", "LEVEL",
                              "how large the map is in the picture: 1/32 to 8 times, in powers of "
                              "two"};
constexpr Option picture_colour{"colour", "FIELD",
                                "colour the map in the picture by a column's values (its number or "
                                "its header)"};
constexpr Option set{"set", "COLUMN=VALUE",
                     "write a value into a column (2 to 56, or its header) of the selected "
                     "provinces; may be repeated"};
constexpr Option save{"save", "FILE", "save the provinces of --csv, without a window"};
constexpr Option check{"check", nullptr, "print what is wrong with --csv, without a window"};
constexpr Option diff{"diff", "FILE",
                      "print in what --csv differs from FILE, the earlier one, without a window"};
constexpr Option help{"help", nullptr, "show this text and end"};
constexpr Option version{"version", nullptr, "show the version and end"};
constexpr std::array options = {&folder,         &csv,         &map_1,         &map_2,
                                &id_map,         &offset,      &select_option, &set,
                                &save,           &check,       &diff,          &screenshot,
                                &picture_size,   &picture_tab, &picture_mode,  &picture_zoom,
                                &picture_colour, &help,        &version};
constexpr std::array without_window = {&save, &check, &diff};
constexpr std::array of_the_picture = {&picture_size, &picture_tab, &picture_mode, &picture_zoom,
                                       &picture_colour};
constexpr std::array of_the_map = {&picture_mode, &picture_zoom, &picture_colour};

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
    QStringList values(const Option& option) const {
        return parser_.values(QString::fromLatin1(option.name));
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

struct ModeName {
    const char* name;
    map::Mode mode;
};
constexpr std::array mode_names = {
    ModeName{"normal", map::Mode::normal}, ModeName{"ville", map::Mode::ville},
    ModeName{"armees", map::Mode::armees}, ModeName{"armées", map::Mode::armees},
    ModeName{"port", map::Mode::port},     ModeName{"manuf", map::Mode::manuf},
    ModeName{"dessin", map::Mode::dessin},
};

QSize read_size(const QString& text) {
    constexpr int most = 16384; // pixels; a picture of that takes a gigabyte
    const auto sides = text.split('x');
    if (sides.size() == 2) {
        const QSize size(sides[0].toInt(), sides[1].toInt());
        if (!size.isEmpty() && size.width() <= most && size.height() <= most)
            return size;
    }
    throw std::invalid_argument("--size needs WIDTHxHEIGHT, such as 1280x720");
}

int read_page(const QString& text) {
    const int number = text.toInt();
    if (number < 1 || number > static_cast<int>(editor::tabs.size()))
        throw std::invalid_argument("--tab needs a number from 1 to " +
                                    std::to_string(editor::tabs.size()));
    return number - 1;
}

map::Mode read_mode(const QString& text) {
    const auto* found =
        std::find_if(mode_names.begin(), mode_names.end(),
                     [&](const ModeName& each) { return text == QString::fromUtf8(each.name); });
    if (found == mode_names.end())
        throw std::invalid_argument(
            "--mode needs one of normal, ville, armees, port, manuf, dessin");
    return found->mode;
}

map::ZoomLevel read_level(const QString& text) {
    for (int power = map::ZoomLevel::smallest; power <= map::ZoomLevel::largest; ++power) {
        const map::ZoomLevel level(power);
        const QString name = power < 0 ? QStringLiteral("1/%1").arg(level.step())
                                       : QString::number(level.enlargement());
        if (text == name)
            return level;
    }
    throw std::invalid_argument("--zoom needs one of 1/32, 1/16, 1/8, 1/4, 1/2, 1, 2, 4, 8");
}

data::FieldNumber read_colour(const QString& text) {
    const auto field = data::field_number(read_column(base::to_bytes(text)));
    if (std::find(map::coloured_fields.begin(), map::coloured_fields.end(), field) ==
        map::coloured_fields.end())
        throw std::invalid_argument("--colour: the map is not coloured by \"" +
                                    base::to_bytes(text) + "\"");
    return field;
}

/// Reads what the picture is to show. Throws std::invalid_argument with what is wrong.
std::optional<Screenshot> read_screenshot(const Arguments& given) {
    if (!given.has(screenshot)) {
        for (const Option* option : of_the_picture) {
            if (given.has(*option))
                throw std::invalid_argument("--" + std::string(option->name) +
                                            " needs --screenshot");
        }
        return {};
    }
    Screenshot picture;
    picture.file = given.value(screenshot);
    if (given.has(picture_size))
        picture.size = read_size(given.value(picture_size));
    if (given.has(picture_tab))
        picture.page = read_page(given.value(picture_tab));
    if (given.has(picture_mode))
        picture.mode = read_mode(given.value(picture_mode));
    if (given.has(picture_zoom))
        picture.level = read_level(given.value(picture_zoom));
    if (given.has(picture_colour))
        picture.colour = read_colour(given.value(picture_colour));
    for (const Option* option : of_the_map) {
        if (given.has(*option) && !given.has(map_1))
            throw std::invalid_argument("--" + std::string(option->name) + " needs the maps");
    }
    return picture;
}

/// Reads "X,Y" as the map files dialog reads its two fields.
void read_offset(const QString& text, map::Maps& maps) {
    const auto comma = text.indexOf(QLatin1Char(','));
    maps.x_offset = data::leading_number(base::to_bytes(text.left(comma)));
    maps.y_offset = data::to_int16(data::leading_number(base::to_bytes(text.mid(comma + 1))),
                                   std::string("--offset"));
}

/// Reads the values of --set. Throws std::invalid_argument with what is wrong.
std::vector<Assignment> read_assignments(const QStringList& values) {
    std::vector<Assignment> assignments;
    for (const auto& value : values) {
        const std::string bytes = base::to_bytes(value);
        if (base::to_qstring(bytes) != value.normalized(QString::NormalizationForm_C))
            throw std::invalid_argument("\"" + bytes + "\" has letters outside the code page");
        assignments.push_back(read_assignment(bytes));
    }
    return assignments;
}

/// Throws std::invalid_argument or a run-time error unless the text names provinces.
void check_selection(const std::string& text) {
    if (!editor::is_well_formed(text))
        throw std::invalid_argument("\"" + text +
                                    "\" is no selection, identifiers and ranges such as "
                                    "12;15;20-25 were expected");
    editor::Selection().apply(text);
}

/// Reads --set, and what else is done with nobody there to answer. Returns what is wrong with it,
/// empty if nothing is.
QString read_unattended(const Arguments& given, CommandLine& line) {
    line.save = given.path(save);
    line.check = given.has(check);
    line.diff = given.path(diff);
    if (given.has(set) && !given.has(select_option))
        return QStringLiteral("--set needs --select.");
    if (!line.needs_window() && !given.has(csv))
        return QStringLiteral("--save, --check and --diff need --csv.");
    if (!line.needs_window() && given.has(screenshot))
        return QStringLiteral(
            "--screenshot paints a window, --save, --check and --diff have none.");
    try {
        line.assignments = read_assignments(given.values(set));
        if (line.select && (given.has(set) || !line.needs_window()))
            check_selection(*line.select);
    } catch (const data::RunTimeError& error) {
        return base::to_qstring(error.place().in_english());
    } catch (const std::invalid_argument& error) {
        return base::to_qstring(error.what());
    }
    return {};
}

} // namespace

bool may_need_no_window(std::span<char* const> arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const std::string_view argument) {
        return std::any_of(without_window.begin(), without_window.end(), [&](const Option* option) {
            return argument.starts_with("--" + std::string(option->name));
        });
    });
}

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
    line.csv_as_given = given.value(csv);
    if (given.has(select_option))
        line.select = base::to_bytes(given.value(select_option));
    try {
        line.screenshot = read_screenshot(given);
    } catch (const std::invalid_argument& error) {
        return given.wrong_use(base::to_qstring(error.what()) + '.');
    }
    if (const QString wrong = read_unattended(given, line); !wrong.isEmpty())
        return given.wrong_use(wrong);

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
        return given.wrong_use(base::to_qstring(error.place().in_english()));
    }
    return line;
}

} // namespace shell
