#include "base/qt_text.h"

#include <algorithm>
#include <array>

namespace base {

namespace {

/// The characters of bytes 0x80 to 0x9F; the five undefined ones are controls of the same number.
constexpr std::array<char16_t, 32> upper_controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned first_upper_control = 0x80;
constexpr unsigned last_upper_control = 0x9F;

QChar character(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < first_upper_control || code > last_upper_control)
        return QChar(static_cast<char16_t>(code));
    return upper_controls[code - first_upper_control];
}

char byte(QChar character) {
    const char16_t code = character.unicode();
    if (code < first_upper_control || (code > last_upper_control && code <= 0xFF))
        return static_cast<char>(code);
    const auto* found = std::find(upper_controls.begin(), upper_controls.end(), code);
    if (found == upper_controls.end())
        return '?';
    return static_cast<char>(first_upper_control +
                             static_cast<unsigned>(found - upper_controls.begin()));
}

} // namespace

QString to_qstring(std::string_view bytes) {
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), character);
    return text;
}

std::string to_bytes(const QString& text) {
    // A letter and its accent may come as two characters; the page has them as one only.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(composed.size()));
    for (const QChar character : composed) {
        if (!character.isLowSurrogate()) // one "?" for a pair
            bytes += byte(character);
    }
    return bytes;
}

bool page_holds(const QString& text) {
    return to_qstring(to_bytes(text)) == text.normalized(QString::NormalizationForm_C);
}

QString from_utf8(std::string_view literal) {
    return QString::fromUtf8(literal.data(), static_cast<qsizetype>(literal.size()));
}

} // namespace base
