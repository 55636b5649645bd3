#pragma once

#include "shell/language.h"

#include <QLabel>

namespace shell {

/// What the empty workspace says: what to do first, with the commands as links, whose targets are
/// the names of the commands' menu items.
class Invitation : public QLabel {
  public:
    Invitation(const LanguageTexts& language, QWidget* parent);

  protected:
    /// The first link takes the focus, or the last one when it comes from behind.
    void focusInEvent(QFocusEvent* event) override;
};

} // namespace shell
