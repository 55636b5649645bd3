#include "base/stored_path.h"

#include "base/qt_text.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace base {

namespace {

constexpr char separator = '\\';
constexpr char substitute = '\x1A';
constexpr qsizetype digits = 4; // of a UTF-16 unit
constexpr int hexadecimal = 16;

bool is_in_code_page(const QString& text) {
    return to_qstring(to_bytes(text)) == text;
}

bool has_drive(const QString& path) {
    return path.size() >= 2 && path[0].isLetter() && path[1] == ':';
}

#ifndef Q_OS_WIN
/// Returns the name of an entry of the folder that differs from the wanted one in letter case only;
/// the wanted name where the folder has none.
QString name_in(const QString& folder, const QString& wanted) {
    if (QFileInfo::exists(folder + wanted))
        return wanted;
    const auto names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
    for (const auto& name : names) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return name;
    }
    return wanted;
}

QString with_letter_case_of_the_disk(const QString& path) {
    if (QFileInfo::exists(path))
        return path;
    QString found = path.startsWith('/') ? QStringLiteral("/") : QStringLiteral("./");
    const auto names = path.split('/', Qt::SkipEmptyParts);
    for (const auto& name : names)
        found += name_in(found, name) + '/';
    found.chop(1);
    return found;
}
#endif

} // namespace

std::string path_bytes(const QString& path) {
    std::string bytes;
    for (const QChar character : path) {
        if (is_in_code_page(character) && character != QLatin1Char(substitute))
            bytes += to_bytes(character);
        else
            bytes += substitute + QStringLiteral("%1")
                                      .arg(character.unicode(), digits, hexadecimal, QChar('0'))
                                      .toStdString();
    }
    return bytes;
}

QString path_text(std::string_view bytes) {
    const QString spelled = to_qstring(bytes);
    QString text;
    for (qsizetype at = 0; at < spelled.size(); ++at) {
        if (spelled[at] == QLatin1Char(substitute) && at + digits < spelled.size()) {
            bool is_number = false;
            const ushort unit = spelled.mid(at + 1, digits).toUShort(&is_number, hexadecimal);
            text += is_number ? QChar(unit) : spelled[at];
            at += is_number ? digits : 0;
        } else {
            text += spelled[at];
        }
    }
    return text;
}

QString native_path(std::string_view path) {
    QString native = path_text(path);
#ifndef Q_OS_WIN
    if (native.startsWith(QStringLiteral("c:"), Qt::CaseInsensitive))
        native = native.size() == 2 ? QStringLiteral(".") : native.mid(2);
    static const QRegularExpression separators(QStringLiteral("[\\\\/]+"));
    native.replace(separators, QStringLiteral("/"));
    native = with_letter_case_of_the_disk(native);
#endif
    return native;
}

std::string stored_path(const QString& path) {
    if (has_drive(path))
        return path_bytes(path);
    QString stored = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    stored.replace('/', separator);
    if (!has_drive(stored))
        stored.prepend(QStringLiteral("c:"));
    return path_bytes(stored);
}

bool is_storable_text(const QString& text) {
    static const QRegularExpression unstorable(QStringLiteral("[\"\r\n]"));
    return is_in_code_page(text) && !text.contains(unstorable);
}

bool is_storable(const QString& name) {
    return is_storable_text(name) && !name.contains(separator);
}

bool is_storable_path(const QString& path) {
    return has_drive(path) ? is_storable_text(path) : is_storable(path);
}

bool is_full_path(const QString& text) {
    if (has_drive(text))
        return text.size() > 2 && (text[2] == '/' || text[2] == separator);
    return QDir::isAbsolutePath(text);
}

std::string in_folder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    path += separator;
    return path.append(name);
}

std::string folder_of(std::string_view path) {
    const auto last = path.rfind(separator);
    return std::string(path.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

} // namespace base
