#include "shell/typed_choice.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QKeyEvent>

#include <array>

namespace shell {

TypedChoice::TypedChoice(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
}

void TypedChoice::choose(int index) {
    setCurrentIndex(index);
    setEditText(itemText(index)); // an unchanged index leaves what was typed
}

void TypedChoice::take_typed() {
    int index = -1;
    for (const auto match : std::array<Qt::MatchFlags, 3>{Qt::MatchFixedString, Qt::MatchStartsWith,
                                                          Qt::MatchContains}) {
        if (index < 0 && !currentText().isEmpty())
            index = findText(currentText(), match);
    }
    completer()->popup()->hide();
    choose(index < 0 ? currentIndex() : index);
}

void TypedChoice::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        take_typed();
    else
        QComboBox::keyPressEvent(event);
}

void TypedChoice::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    installEventFilter(this); // to be asked before the completer, which was installed just now
}

bool TypedChoice::eventFilter(QObject* watched, QEvent* event) {
    // While its list is shown, the completer would keep it from us that the field is left.
    if (watched == this && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        completer()->popup()->hide();
    return QComboBox::eventFilter(watched, event);
}

void TypedChoice::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        take_typed();
}

} // namespace shell
