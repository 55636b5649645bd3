#include "editor/entry_field.h"

#include "base/qt_text.h"

#include <QApplication>
#include <QFocusEvent>

namespace editor {

namespace {

/// Menus, tool tips, dialogs and other programs take the focus for a while only: the user comes
/// back to the field as he left it.
bool leaves(const QWidget& field, Qt::FocusReason reason) {
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason)
        return false;
    const QWidget* next = QApplication::focusWidget();
    return next && next != &field && next->window() == field.window();
}

} // namespace

EntryField::EntryField(QWidget* parent) : OneLineEdit(parent) {
    connect(this, &QLineEdit::returnPressed, this, &EntryField::entered);
}

void EntryField::show_bytes(const std::string& bytes) {
    setText(base::to_qstring(bytes));
    setCursorPosition(0);
    lost_characters_ = false;
    shown_is_current_ = true;
}

void EntryField::show_stored(const std::string& bytes) {
    lost_characters_ = !base::page_holds(text());
    const QString stored = base::to_qstring(bytes);
    if (stored != text()) {
        const int cursor = cursorPosition();
        setText(stored);
        setCursorPosition(cursor);
    }
    setModified(false);
    shown_is_current_ = true;
}

std::string EntryField::bytes() const {
    return base::to_bytes(text());
}

void EntryField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (leaves(*this, event->reason()) && (shown_is_current_ || isModified()))
        emit left();
}

} // namespace editor
