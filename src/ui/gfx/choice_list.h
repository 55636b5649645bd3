#pragma once

#include <QListWidget>

namespace gfx {

/// A list of which at most one entry is chosen: the current entry is the selected one, so that none
/// looks chosen that is not.
class ChoiceList : public QListWidget {
    Q_OBJECT

  public:
    using QListWidget::QListWidget;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};

} // namespace gfx
