#pragma once

#include "shell/table_form.h"

#include <vector>

namespace editor {
class Panneau;
}

namespace shell {

/// The unsaved changes: every cell that differs from what a file last gave it or took from it.
class Form_modifications : public TableForm {
    Q_OBJECT

  public:
    /// The panel names the columns that have no header.
    Form_modifications(Session& session, const editor::Panneau& panel, QWidget* owner);

    /// Shows the present changes.
    void refresh();

  signals:
    void province_chosen(int province);
    /// Cells are about to be put back: what is typed belongs to the table before.
    void about_to_write();
    void written();

  private:
    QString caption(data::FileColumn column) const;
    void put_back();

    Session& table_owner_;
    const editor::Panneau& panel_;
    std::vector<data::Change> changes_; // as shown
};

} // namespace shell
