#pragma once

#include <QCheckBox>

namespace editor {

/// A check box that the press toggles, not the release.
class PressBox : public QCheckBox {
  public:
    using QCheckBox::QCheckBox;

  protected:
    void nextCheckState() override {}
};

} // namespace editor
