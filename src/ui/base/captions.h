#pragma once

#include "base/qt_text.h"
#include "base/shown_text.h"
#include "shell/language.h"

#include <QString>

#include <string_view>

namespace base {

/// Returns the main frame's caption for the key (in UTF-8, without the frame's name and its dot),
/// the design-time caption (in UTF-8) where the language file has none.
inline QString frame_caption(const shell::LanguageTexts& language, std::string_view key,
                             std::string_view design) {
    const auto caption = language.caption("MDIForm1." + to_bytes(from_utf8(key)));
    return caption ? caption_text(*caption) : from_utf8(design);
}

/// Returns a dialog's caption for the key, spelled exactly so; the design-time caption where the
/// language file has none.
inline QString dialog_caption(const shell::LanguageTexts& language, std::string_view key,
                              std::string_view design) {
    const auto caption = language.exact_caption(key);
    return caption ? caption_text(*caption) : from_utf8(design);
}

/// Returns one of the program's own texts, with %1 and %2 replaced by the values.
inline QString own_text(const shell::LanguageTexts& language, shell::Text text,
                        const QString& value = {}, const QString& second_value = {}) {
    return caption_text(language.text(text, {to_bytes(value), to_bytes(second_value)}));
}

/// Returns the text of an item that is named by something from outside, such as a file: it is
/// shown as it is, without a letter or a shortcut of its own.
inline QString item_text(QString name) {
    for (QChar& character : name) {
        if (character < QLatin1Char(' '))
            character = QLatin1Char(' ');
    }
    return name.replace('&', QStringLiteral("&&"));
}

/// Returns what a caption names: without the mark of its shortcut and the dots that announce a
/// dialog.
inline QString without_marks(QString caption) {
    while (caption.endsWith('.') || caption.endsWith(QChar(0x2026)))
        caption.chop(1);
    for (qsizetype at = caption.indexOf('&'); at >= 0; at = caption.indexOf('&', at + 1))
        caption.remove(at, 1); // the second of two stays
    return caption.trimmed();
}

} // namespace base
