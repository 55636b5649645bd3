#pragma once

#include "editor/panel_layout.h"
#include "shell/language.h"

class QWidget;

namespace editor {

/// Returns the tab's frame with all its controls under their object names, captioned by the
/// language file. Captions of options and boxes are the ones of design time.
QWidget* build_tab(const Tab& tab, const shell::LanguageTexts& language, QWidget* parent);

/// Gives all labels before a control the width of the widest one, and all options that share a row
/// with as many others likewise, so that columns align from frame to frame.
void align(QWidget& panel);

} // namespace editor
