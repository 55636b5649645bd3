#include "editor/entry_field.h"

#include "base/qt_text.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMessageBox>

#include <limits>

namespace editor {

namespace {

/// Menus, tool tips, message boxes and other programs take the focus for a while only: the user
/// comes back to the field as he left it.
bool leaves(const QWidget& field, Qt::FocusReason reason) {
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason)
        return false;
    if (reason != Qt::ActiveWindowFocusReason)
        return true;
    const QWidget* active = QApplication::activeWindow();
    return active && active != field.window() && active->windowType() != Qt::Popup &&
           !qobject_cast<const QMessageBox*>(active);
}

} // namespace

EntryField::EntryField(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::returnPressed, this, &EntryField::entered);
}

void EntryField::show_bytes(const std::string& bytes) {
    setText(base::to_qstring(bytes));
    setCursorPosition(0);
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
