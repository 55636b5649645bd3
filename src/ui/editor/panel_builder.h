#pragma once

#include "editor/controls.h"
#include "editor/panel_layout.h"
#include "shell/language.h"

class QWidget;

namespace editor {

/// Returns the tab's frame, captioned by the language file, and adds its controls to the others.
/// Captions of options and boxes are the ones of design time.
QWidget* build_tab(const Tab& tab, const shell::LanguageTexts& language, Controls& controls,
                   QWidget* parent);

/// Gives all labels before a control the width of the widest one, and all options that share a row
/// with as many others likewise, so that columns align from frame to frame.
void align(QWidget& panel);

} // namespace editor
