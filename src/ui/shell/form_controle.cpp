#include "shell/form_controle.h"

#include "base/qt_text.h"

#include <QPushButton>

#include <algorithm>
#include <array>
#include <utility>

namespace shell {

namespace {

constexpr std::array columns = {Text::column_province, Text::column_column, Text::column_value,
                                Text::column_problem};

} // namespace

Form_controle::Form_controle(const Session& session, Check check, QWidget* owner)
    : TableForm({"Form_contrôle", "problèmes", Text::controle_caption, columns}, session, owner),
      check_(std::move(check)) {
    auto* refresh_button = add_button("refresh", Text::button_refresh);
    connect(refresh_button, &QPushButton::clicked, this, &Form_controle::refresh);
    connect(this, &TableForm::activated, this, [this](std::size_t row) {
        if (const int province = problems_.at(row).province; province > 0)
            emit province_chosen(province);
    });
}

void Form_controle::refresh() {
    problems_ = check_();
    const auto& language = session().language;
    std::vector<Row> rows;
    rows.reserve(problems_.size());
    for (const auto& problem : problems_) {
        rows.push_back(
            {problem.province > 0 ? QVariant(problem.province) : QVariant(QString()),
             base::to_qstring(problem.column ? shown_column(*problem.column) : std::string()),
             base::to_qstring(problem.value), base::to_qstring(text_of(problem, language))});
    }
    const auto hints = std::count_if(problems_.begin(), problems_.end(),
                                     [](const Problem& problem) { return problem.is_hint; });
    const auto faults = static_cast<std::ptrdiff_t>(problems_.size()) - hints;
    show_rows(std::move(rows),
              base::to_qstring(problems_.empty()
                                   ? language.text(Text::controle_none)
                                   : language.text(Text::controle_count, {std::to_string(faults),
                                                                          std::to_string(hints)})));
}

} // namespace shell
