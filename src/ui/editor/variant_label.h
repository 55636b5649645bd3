#pragma once

#include <QLabel>

namespace editor {

/// A value that is copied to all selected provinces by a click or the Space key.
class VariantLabel : public QLabel {
    Q_OBJECT

  public:
    explicit VariantLabel(QWidget* parent);

  signals:
    void clicked();

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace editor
