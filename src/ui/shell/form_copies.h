#pragma once

#include "shell/table_form.h"

#include <string>
#include <vector>

namespace shell {

/// The recovery copies and backups that are there, newest first; one of them can be opened.
class Form_copies : public TableForm {
    Q_OBJECT

  public:
    Form_copies(const Session& session, QWidget* owner);

    /// Returns the stored path of the copy that was opened; empty when the dialog was closed.
    const std::string& opened() const { return opened_; }

  private:
    void refresh();
    void open(std::size_t row);
    void delete_chosen();

    std::vector<std::string> paths_; // as shown
    std::string opened_;
};

} // namespace shell
