#include "shell/table_form.h"

#include "base/captions.h"
#include "base/qt_text.h"
#include "shell/table_model.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace shell {

namespace {

constexpr QSize initial_size(760, 420);
constexpr int row_margin = 6;      // pixels above and below a row's text, together
constexpr int widest_column = 320; // pixels, when the rows are shown first

/// A list in which Enter presses none of the dialog's buttons.
class List : public QTableView {
  public:
    using QTableView::QTableView;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QTableView::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            event->accept();
    }
};

QString text(const Session& session, Text text) {
    return base::to_qstring(session.language.text(text));
}

QStringList headings(const Session& session, std::span<const Text> columns) {
    QStringList texts;
    for (const Text column : columns)
        texts += text(session, column);
    return texts;
}

} // namespace

TableForm::TableForm(const Kind& kind, const Session& session, QWidget* owner)
    : QDialog(owner),
      session_(session),
      model_(new TableModel(headings(session, kind.columns), this)),
      sorted_(new QSortFilterProxyModel(this)),
      list_(new List(this)),
      count_(new QLabel(this)),
      buttons_(new QHBoxLayout) {
    setObjectName(base::from_utf8(kind.name));
    setWindowTitle(text(session, kind.caption));
    sorted_->setSourceModel(model_);
    sorted_->setSortCaseSensitivity(Qt::CaseInsensitive);
    list_->setObjectName(base::from_utf8(kind.list));
    list_->setAccessibleName(windowTitle());
    list_->setModel(sorted_);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setSortingEnabled(true);
    list_->sortByColumn(-1, Qt::AscendingOrder); // as the rows come, until the user sorts them
    list_->setTabKeyNavigation(false);
    list_->setWordWrap(false);
    list_->verticalHeader()->hide();
    list_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + row_margin);
    list_->horizontalHeader()->setStretchLastSection(true);
    count_->setObjectName(QStringLiteral("count"));

    auto* close_button = new QPushButton(text(session, Text::button_close), this);
    close_button->setObjectName(QStringLiteral("close"));
    buttons_->addWidget(count_, 1);
    buttons_->addWidget(close_button);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_);
    column->addLayout(buttons_);
    resize(initial_size);
    list_->setFocus();

    connect(close_button, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QTableView::activated, this, [this](const QModelIndex& index) {
        emit activated(static_cast<std::size_t>(sorted_->mapToSource(index).row()));
    });
}

QPushButton* TableForm::add_button(const char* name, Text caption) {
    auto* button = new QPushButton(text(session_, caption), this);
    button->setObjectName(QString::fromLatin1(name));
    buttons_->insertWidget(buttons_->count() - 1, button);
    return button;
}

void TableForm::show_rows(std::vector<Row> rows, const QString& count) {
    const bool is_first = model_->rowCount() == 0;
    const int current = list_->currentIndex().row();
    model_->show_rows(std::move(rows));
    count_->setText(count);
    list_->setCurrentIndex(
        sorted_->index(std::clamp(current, 0, std::max(sorted_->rowCount() - 1, 0)), 0));
    if (!is_first)
        return;
    list_->resizeColumnsToContents();
    for (int column = 0; column < model_->columnCount(); ++column)
        list_->setColumnWidth(column, std::min(list_->columnWidth(column), widest_column));
}

std::vector<std::size_t> TableForm::chosen() const {
    std::vector<std::size_t> rows;
    for (const auto& index : list_->selectionModel()->selectedRows())
        rows.push_back(static_cast<std::size_t>(sorted_->mapToSource(index).row()));
    return rows;
}

} // namespace shell
