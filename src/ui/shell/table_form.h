#pragma once

#include "shell/session.h"

#include <QDialog>
#include <QVariant>

#include <span>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace shell {

class TableModel;

/// A dialog with a sortable list, a line that counts its rows, and buttons below.
class TableForm : public QDialog {
    Q_OBJECT

  public:
    /// The cells of a row: texts, and numbers where a column sorts by number.
    using Row = std::vector<QVariant>;

    /// What makes one such dialog another.
    struct Kind {
        const char* name; // object name in UTF-8
        const char* list; // object name of the list
        Text caption;
        std::span<const Text> columns;
    };

    TableForm(const Kind& kind, const Session& session, QWidget* owner);

    /// Shows the rows in the place of the present ones; the order that the user chose stays, and
    /// the row that was current stays current where there still is one so far down.
    void show_rows(std::vector<Row> rows, const QString& count);

    /// Returns the chosen rows, as numbers into what was shown last.
    std::vector<std::size_t> chosen() const;

  signals:
    /// A row was double-clicked, or Enter was pressed on it.
    void activated(std::size_t row);
    void chosen_changed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// Adds a button in front of the one that closes the dialog.
    QPushButton* add_button(const char* name, Text caption);
    /// Adds what stands above the list.
    void add_above(QLayout* entries);
    void set_count(const QString& count);
    /// Makes the row of the list, counted as it is sorted, the current and only chosen one.
    void make_current(int row);
    QTableView* list() const { return list_; }
    const Session& session() const { return session_; }

  private:
    const Session& session_;
    TableModel* model_;
    QSortFilterProxyModel* sorted_;
    QTableView* list_;
    QLabel* count_;
    QHBoxLayout* buttons_;
    bool has_widths_ = false; // of the columns, which the user may have changed since
};

} // namespace shell
