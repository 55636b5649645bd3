#include "editor/one_line_edit.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <limits>

namespace editor {

namespace {

QString one_line(QString text) {
    static const QRegularExpression outer(
        QStringLiteral("^[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+\\z"));
    static const QRegularExpression inner(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
    return text.remove(outer).replace(inner, QStringLiteral(" "));
}

} // namespace

OneLineEdit::OneLineEdit(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
}

void OneLineEdit::paste_line() {
    insert(one_line(QApplication::clipboard()->text()));
}

void OneLineEdit::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && event->isAutoRepeat())
        return;
    if (event->matches(QKeySequence::Paste))
        paste_line();
    else
        QLineEdit::keyPressEvent(event);
}

void OneLineEdit::mouseReleaseEvent(QMouseEvent* event) {
    const auto* clipboard = QApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        deselect();
        insert(one_line(clipboard->text(QClipboard::Selection)));
    } else {
        QLineEdit::mouseReleaseEvent(event);
    }
}

void OneLineEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        if (!action->text().startsWith(QLineEdit::tr("&Paste")))
            continue;
        action->disconnect(this);
        connect(action, &QAction::triggered, this, &OneLineEdit::paste_line);
    }
    menu->popup(event->globalPos());
}

void OneLineEdit::dragEnterEvent(QDragEnterEvent* event) {
    const auto urls = event->mimeData()->urls();
    if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); }))
        event->ignore();
    else
        QLineEdit::dragEnterEvent(event);
}

void OneLineEdit::dropEvent(QDropEvent* event) {
    QMimeData line;
    line.setText(one_line(event->mimeData()->text()));
    QDropEvent drop(event->position(), event->possibleActions(), &line, event->buttons(),
                    event->modifiers());
    drop.setDropAction(event->dropAction());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void OneLineEdit::inputMethodEvent(QInputMethodEvent* event) {
    event->setCommitString(one_line(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

} // namespace editor
