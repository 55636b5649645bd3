#include "shell/form_copies.h"

#include "base/files.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/province_file.h"
#include "data/run_time_error.h"
#include "shell/backups.h"
#include "shell/recovery_copies.h"
#include "shell/table_comparison.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace shell {

namespace {

constexpr std::array columns = {Text::column_time, Text::column_kind, Text::column_file,
                                Text::column_differing};

struct Copy {
    std::string path;
    Text kind;
    QDateTime time;
};

std::vector<Copy> present_copies(const Session& session) {
    std::vector<Copy> copies;
    const auto add = [&](const std::vector<std::string>& paths, Text kind) {
        for (const auto& path : paths)
            copies.push_back({path, kind, QFileInfo(base::native_path(path)).lastModified()});
    };
    add(recovery_copies(session), Text::copies_recovery_copy);
    add(backups(session), Text::copies_backup);
    std::stable_sort(copies.begin(), copies.end(),
                     [](const Copy& left, const Copy& right) { return left.time > right.time; });
    return copies;
}

/// Returns in how many provinces the copy differs from the table, or that it cannot be read.
QVariant differing(const Session& session, const std::string& path) {
    try {
        data::ProvinceTable table = session.provinces;
        data::read_provinces(base::read_file(path), table, data::Source::copy);
        return differing_provinces(session.provinces, table);
    } catch (const data::RunTimeError&) {
        return base::to_qstring(session.language.text(Text::copies_unreadable));
    }
}

} // namespace

Form_copies::Form_copies(const Session& session, QWidget* owner)
    : TableForm({"Form_copies", "copies", Text::copies_caption, columns}, session, owner) {
    auto* open_button = add_button("open", Text::button_open);
    auto* delete_button = add_button("delete", Text::button_delete);
    connect(open_button, &QPushButton::clicked, this, [this] {
        if (const auto rows = chosen(); !rows.empty())
            open(rows.front());
    });
    connect(delete_button, &QPushButton::clicked, this, &Form_copies::delete_chosen);
    connect(this, &TableForm::activated, this, &Form_copies::open);
    refresh();
}

void Form_copies::refresh() {
    paths_.clear();
    std::vector<Row> rows;
    for (const auto& copy : present_copies(session())) {
        rows.push_back({copy.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                        base::to_qstring(session().language.text(copy.kind)),
                        base::path_text(base::shown_path(copy.path)),
                        differing(session(), copy.path)});
        paths_.push_back(copy.path);
    }
    show_rows(std::move(rows), paths_.empty()
                                   ? base::to_qstring(session().language.text(Text::copies_none))
                                   : QString());
}

void Form_copies::open(std::size_t row) {
    opened_ = paths_.at(row);
    accept();
}

void Form_copies::delete_chosen() {
    for (const std::size_t row : chosen()) {
        const std::string& path = paths_.at(row);
        const std::string question =
            session().language.text(Text::copies_delete_question, {base::shown_path(path)});
        if (base::ask(session(), this, question, base::DefaultAnswer::no))
            QFile::remove(base::native_path(path));
    }
    refresh();
}

} // namespace shell
