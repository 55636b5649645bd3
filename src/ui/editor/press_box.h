#pragma once

#include <QCheckBox>
#include <QMouseEvent>

namespace editor {

/// A check box that the press toggles, not the release.
class PressBox : public QCheckBox {
  public:
    using QCheckBox::QCheckBox;

  protected:
    void nextCheckState() override {}
    void mouseMoveEvent(QMouseEvent*) override {} // coming back with the button held is no press
};

} // namespace editor
