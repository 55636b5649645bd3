#include "base/shown_text.h"

#include "base/qt_text.h"
#include "base/stored_path.h"

namespace base {

namespace {

// In characters.
constexpr qsizetype longest_message = 1200;
constexpr qsizetype longest_caption = 150;

/// Returns the text; of one that is longer than that only its begin and its end.
QString shortened(const QString& text, qsizetype longest) {
    if (text.size() <= longest)
        return text;
    const qsizetype end = longest / 3;
    return text.left(longest - end) + QStringLiteral(" ... ") + text.right(end);
}

} // namespace

QString message_text(std::string_view bytes) {
    QString text = shortened(path_text(bytes), longest_message);
    return text.replace(QChar(0), QStringLiteral("\\0")); // some displays end at it
}

QString caption_text(std::string_view bytes) {
    return shortened(to_qstring(bytes), longest_caption);
}

} // namespace base
