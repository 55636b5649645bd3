#include "shell/table_form.h"

#include "base/captions.h"
#include "base/qt_text.h"
#include "data/province_table.h"
#include "shell/table_model.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace shell {

namespace {

constexpr QSize initial_size(760, 420);
constexpr int row_margin = 6;      // pixels above and below a row's text, together
constexpr int widest_column = 600; // pixels, when the rows are shown first
constexpr int around_columns = 50; // pixels, for scroll bar and margins

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
      list_(new QTableView(this)),
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
    list_->setLocale(QLocale::c()); // an identifier has no separators of thousands
    list_->setWordWrap(false);
    list_->verticalHeader()->hide();
    list_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + row_margin);
    list_->horizontalHeader()->setStretchLastSection(true);
    // Long names may be those of the last provinces, which Qt would not look at.
    list_->horizontalHeader()->setResizeContentsPrecision(data::last_province);
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

    close_button->setAutoDefault(false);
    connect(close_button, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QTableView::activated, this, [this](const QModelIndex& index) {
        emit activated(static_cast<std::size_t>(sorted_->mapToSource(index).row()));
    });
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TableForm::chosen_changed);
}

QPushButton* TableForm::add_button(const char* name, Text caption) {
    auto* button = new QPushButton(text(session_, caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    buttons_->insertWidget(buttons_->count() - 1, button);
    return button;
}

/// Enter presses the button that has the focus, and none without it: elsewhere it is the list's.
void TableForm::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && button != nullptr)
        button->click();
    else
        QDialog::keyPressEvent(event);
}

void TableForm::add_above(QLayout* entries) {
    static_cast<QVBoxLayout*>(layout())->insertLayout(0, entries);
}

void TableForm::set_count(const QString& count) {
    count_->setText(count);
}

void TableForm::make_current(int row) {
    // The view's own way asks which keys are held, and the shortcut that led here still is.
    list_->selectionModel()->setCurrentIndex(
        sorted_->index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void TableForm::show_rows(std::vector<Row> rows, const QString& count) {
    const int current = list_->currentIndex().row();
    model_->show_rows(std::move(rows));
    set_count(count);
    make_current(std::clamp(current, 0, std::max(sorted_->rowCount() - 1, 0)));
    if (has_widths_ || sorted_->rowCount() == 0)
        return;
    has_widths_ = true;
    list_->resizeColumnsToContents();
    const QHeaderView& header = *list_->horizontalHeader();
    int needed = around_columns;
    for (int column = 0; column < model_->columnCount(); ++column) {
        const int wanted = std::max(list_->columnWidth(column), header.sectionSizeHint(column));
        list_->setColumnWidth(column, std::min(wanted, widest_column));
        needed += std::min(wanted, widest_column);
    }
    const int frame = frameGeometry().width() - width();
    const int widest = screen()->availableSize().width() - frame;
    resize(std::min(std::max(width(), needed), widest), height());
}

std::vector<std::size_t> TableForm::chosen() const {
    std::vector<std::size_t> rows;
    for (const auto& index : list_->selectionModel()->selectedRows())
        rows.push_back(static_cast<std::size_t>(sorted_->mapToSource(index).row()));
    return rows;
}

} // namespace shell
