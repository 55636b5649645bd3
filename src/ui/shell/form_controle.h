#pragma once

#include "shell/problem.h"
#include "shell/table_form.h"

#include <functional>
#include <vector>

namespace shell {

/// What the check of the provinces found, sortable; one works on while it stands.
class Form_controle : public TableForm {
    Q_OBJECT

  public:
    /// Runs the check anew.
    using Check = std::function<std::vector<Problem>()>;

    Form_controle(const Session& session, Check check, QWidget* owner);

    void refresh();

  signals:
    void province_chosen(int province);

  private:
    Check check_;
    std::vector<Problem> problems_; // as shown
};

} // namespace shell
