#pragma once

#include <QLineEdit>

namespace editor {

/// A text field into which no line end comes from outside: at the ends of a pasted or dropped text
/// they are left out, in its middle each becomes a blank. Dragged files are not for it but for the
/// window. Enter that repeats by being held does nothing.
class OneLineEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit OneLineEdit(QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

  private:
    void paste_line();
};

} // namespace editor
