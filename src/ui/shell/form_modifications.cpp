#include "shell/form_modifications.h"

#include "base/qt_text.h"
#include "editor/panneau.h"
#include "shell/problem.h"

#include <QPushButton>

#include <algorithm>
#include <array>
#include <tuple>

namespace shell {

namespace {

constexpr std::array columns = {Text::column_province, Text::column_name, Text::column_column,
                                Text::column_before, Text::column_now};

} // namespace

Form_modifications::Form_modifications(Session& session, const editor::Panneau& panel,
                                       QWidget* owner)
    : TableForm({"Form_modifications", "modifications_list", Text::modifications_caption, columns},
                session, owner),
      table_owner_(session),
      panel_(panel) {
    auto* put_back_button = add_button("put_back", Text::button_put_back);
    auto* refresh_button = add_button("refresh", Text::button_refresh);
    connect(put_back_button, &QPushButton::clicked, this, &Form_modifications::put_back);
    connect(refresh_button, &QPushButton::clicked, this, &Form_modifications::refresh);
    connect(this, &TableForm::activated, this,
            [this](std::size_t row) { emit province_chosen(changes_.at(row).province); });
}

void Form_modifications::refresh() {
    const auto& provinces = table_owner_.provinces;
    const auto changes = provinces.changes();
    changes_.assign(changes.begin(), changes.end());
    std::sort(changes_.begin(), changes_.end(), [](const auto& left, const auto& right) {
        return std::tuple(left.province, left.column.index) <
               std::tuple(right.province, right.column.index);
    });
    std::vector<Row> rows;
    rows.reserve(changes_.size());
    for (const auto& change : changes_)
        rows.push_back({change.province,
                        base::to_qstring(provinces.cell(change.province,
                                                        data::table_column(data::column::name))),
                        caption(data::file_column(change.column)), base::to_qstring(change.before),
                        base::to_qstring(provinces.cell(change.province, change.column))});
    const auto& language = table_owner_.language;
    show_rows(std::move(rows),
              base::to_qstring(changes_.empty()
                                   ? language.text(Text::modifications_none)
                                   : language.text(Text::modifications_count,
                                                   {std::to_string(changes_.size())})));
}

QString Form_modifications::caption(data::FileColumn column) const {
    if (!data::header(column).empty())
        return base::to_qstring(shown_column(column));
    return QStringLiteral("%1 (%2)")
        .arg(column.number)
        .arg(panel_.field_name(data::field_number(column)));
}

void Form_modifications::put_back() {
    emit about_to_write();
    for (const std::size_t row : chosen()) {
        const auto& change = changes_.at(row);
        table_owner_.provinces.write(change.province, change.column, change.before);
    }
    refresh();
    emit written();
}

} // namespace shell
