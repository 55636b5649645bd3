#include "gfx/choice_list.h"

namespace gfx {

void ChoiceList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    // The base class makes the first entry the current one without selecting it; the first press of
    // the down key would then select the second.
    if (selectedItems().isEmpty())
        setCurrentItem(nullptr);
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    const auto command = QListWidget::selectionCommand(index, event);
    return command.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate
                                                           : command;
}

} // namespace gfx
