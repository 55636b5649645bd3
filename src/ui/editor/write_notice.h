#pragma once

#include "shell/language.h"

#include <QString>

#include <string_view>

namespace editor {

/// A text that an entry stored in the selected provinces.
struct Written {
    QString field; // as its caption names it
    int provinces; // whose value is another one now
    std::string_view text;
    bool lost_characters; // which the code page does not have
};

/// Returns what the user is told of an entry: the field and how many provinces it changed, and what
/// is unexpected about the text. Empty for one that changed nothing.
QString write_notice(const shell::LanguageTexts& language, const Written& written);

} // namespace editor
