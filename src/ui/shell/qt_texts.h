#pragma once

#include "shell/language.h"

namespace shell {

/// Gives Qt's own texts (buttons of boxes, context and window menus) the language of the others,
/// where Qt's translations are installed.
void install_qt_texts(const LanguageTexts& language);

} // namespace shell
