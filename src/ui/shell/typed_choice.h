#pragma once

#include <QComboBox>

namespace shell {

/// A drop-down list whose items are found by typing any part of them.
class TypedChoice : public QComboBox {
    Q_OBJECT

  public:
    explicit TypedChoice(QWidget* parent);

    /// Chooses the item, whatever is typed.
    void choose(int index);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void take_typed();
};

} // namespace shell
