#pragma once

#include "shell/language.h"
#include "shell/qt_text.h"

#include <QString>

#include <string_view>

namespace shell {

/// Returns the main frame's caption for the key (in UTF-8, without the frame's name and its dot),
/// the design-time caption (in UTF-8) where the language file has none.
inline QString frame_caption(const LanguageTexts& language, std::string_view key,
                             std::string_view design) {
    const auto caption = language.caption("MDIForm1." + to_bytes(from_source(key)));
    return caption ? to_qstring(*caption) : from_source(design);
}

/// Returns a dialog's caption for the key, spelled exactly so; the design-time caption where the
/// language file has none.
inline QString dialog_caption(const LanguageTexts& language, std::string_view key,
                              std::string_view design) {
    const auto caption = language.exact_caption(key);
    return caption ? to_qstring(*caption) : from_source(design);
}

} // namespace shell
