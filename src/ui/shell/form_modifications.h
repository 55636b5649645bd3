#pragma once

#include "shell/table_form.h"

#include <vector>

namespace shell {

/// The unsaved changes: every cell that differs from what a file last gave it or took from it.
class Form_modifications : public TableForm {
    Q_OBJECT

  public:
    Form_modifications(Session& session, QWidget* owner);

    /// Shows the present changes.
    void refresh();

  signals:
    void province_chosen(int province);
    /// Cells are about to be put back: what is typed belongs to the table before.
    void about_to_write();
    void written();

  private:
    void put_back();

    Session& table_owner_;
    std::vector<data::Change> changes_; // as shown
};

} // namespace shell
