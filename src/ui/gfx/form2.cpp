#include "gfx/form2.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/numbers.h"
#include "gfx/form4.h"
#include "shell/session.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace gfx {

namespace {

constexpr std::int16_t confirmed = 2; // the cancelled flag's value until the dialog is closed
constexpr int initial_width = 620;
constexpr int browse_width = 40;
constexpr int offset_width = 90;
constexpr int space_between_columns = 10;
constexpr int space_above_heading = 12;

/// The captions of the labels where the language file has none.
constexpr std::array label_captions = {"Map 1",    "Map 2 (optional)",
                                       "ID map",   "X offset",
                                       "Y offset", "Where the maps lie in the game world (pixels)"};

bool is_quoted(const QString& text) {
    return text.size() > 1 && (text[0] == '"' || text[0] == '\'') && text.back() == text[0];
}

/// Returns a path as it is meant: other programs copy it with blanks or quotes around it.
QString bare(QString path) {
    path = path.trimmed();
    while (is_quoted(path))
        path = path.mid(1, path.size() - 2).trimmed();
    return path;
}

} // namespace

Form2::Form2(shell::Session& session, const map::Maps& proposed, QWidget* owner)
    : QDialog(owner),
      session_(session),
      x_offset_(new QLineEdit(this)),
      y_offset_(new QLineEdit(this)),
      confirm_(new QPushButton(this)) {
    setObjectName(QStringLiteral("Form2"));
    setWindowTitle(QApplication::applicationDisplayName());
    lay_out();
    apply_captions();
    show_values(proposed);
    connect(confirm_, &QPushButton::clicked, this, &Form2::confirm);
}

void Form2::done(int result) {
    session_.cancelled_flag = session_.cancelled_flag == confirmed ? 0 : 1;
    QDialog::done(result);
}

void Form2::lay_out() {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_.at(i) = new QLabel(this);
        labels_.at(i)->setObjectName(QStringLiteral("Label%1").arg(i + 1));
    }
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(space_between_columns);
    QWidget* last = nullptr;
    for (int i = 0; i < file_count; ++i) {
        auto* field = new QLineEdit(this);
        field->setObjectName(QStringLiteral("Text1(%1)").arg(i));
        paths_.at(static_cast<std::size_t>(i)) = field;
        auto* button = new QPushButton(QStringLiteral("..."), this);
        browse_buttons_.at(static_cast<std::size_t>(i)) = button;
        button->setMaximumWidth(browse_width);
        button->setObjectName(QStringLiteral("Command2(%1)").arg(i));
        connect(button, &QPushButton::clicked, this, [this, i] { browse(i); });
        label(i + 1)->setBuddy(field);
        grid->addWidget(label(i + 1), i, 0);
        grid->addWidget(field, i, 1);
        grid->addWidget(button, i, 2);
        last = button;
    }

    x_offset_->setObjectName(QStringLiteral("Text3"));
    y_offset_->setObjectName(QStringLiteral("Text4"));
    x_offset_->setFixedWidth(offset_width);
    y_offset_->setFixedWidth(offset_width);
    label(4)->setBuddy(x_offset_);
    label(5)->setBuddy(y_offset_);
    label(6)->setContentsMargins(0, space_above_heading, 0, 0);
    grid->addWidget(label(6), file_count, 0, 1, 3);
    auto* offsets = new QHBoxLayout;
    offsets->setSpacing(space_between_columns);
    for (QWidget* part : std::array<QWidget*, 3>{x_offset_, label(5), y_offset_})
        offsets->addWidget(part);
    offsets->addStretch();
    grid->addWidget(label(4), file_count + 1, 0);
    grid->addLayout(offsets, file_count + 1, 1);

    confirm_->setObjectName(QStringLiteral("Command1"));
    confirm_->setDefault(true);
    grid->setRowStretch(file_count + 2, 1);
    grid->addWidget(confirm_, file_count + 3, 0, 1, 3, Qt::AlignRight);
    for (QWidget* next : std::array<QWidget*, 3>{x_offset_, y_offset_, confirm_}) {
        setTabOrder(last, next);
        last = next;
    }
    path_field(0)->setFocus();
    resize(initial_width, sizeHint().height());
}

void Form2::apply_captions() {
    const auto apply = [this](auto* control, const char* design_caption) {
        const std::string key = "Form2." + base::to_bytes(control->objectName());
        control->setText(base::dialog_caption(session_.language, key, design_caption));
    };
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        apply(labels_.at(i), label_captions.at(i));
        if (QWidget* field = labels_.at(i)->buddy())
            field->setAccessibleName(base::without_marks(labels_.at(i)->text()));
    }
    for (std::size_t i = 0; i < browse_buttons_.size(); ++i) {
        const QString purpose = base::own_text(session_.language, shell::Text::chooser_browse,
                                               paths_.at(i)->accessibleName());
        browse_buttons_.at(i)->setAccessibleName(purpose);
        browse_buttons_.at(i)->setToolTip(purpose);
    }
    apply(confirm_, "OK");
}

void Form2::show_values(const map::Maps& maps) {
    path_field(0)->setText(base::path_text(maps.map_1_path));
    path_field(1)->setText(base::path_text(maps.map_2_path));
    path_field(2)->setText(base::path_text(maps.id_map_path));
    x_offset_->setText(base::to_qstring(data::to_text(maps.x_offset)));
    y_offset_->setText(base::to_qstring(data::to_text(maps.y_offset)));
}

void Form2::browse(int index) {
    session_.chooser_kind = ChooserKind::BMP;
    Form4 chooser(session_, this);
    chooser.exec();
    if (session_.cancelled_flag != 1)
        path_field(index)->setText(base::to_qstring(session_.configuration.map_bitmap_path));
}

void Form2::confirm() {
    if (x_offset_->text().isEmpty() || y_offset_->text().isEmpty()) {
        base::show_message(session_, this,
                           session_.language.message(data::Message::offset_missing));
        return;
    }
    const QString map_1 = path_in(0);
    const QString map_2 = path_in(1);
    const QString id_map = path_in(2);
    if (map_1.isEmpty() || id_map.isEmpty()) {
        base::show_message(session_, this, session_.language.message(data::Message::map_missing));
        return;
    }
    session_.cancelled_flag = confirmed;
    map::Maps& maps = session_.maps;
    maps.map_1_path = base::stored_path(map_1);
    if (!map_2.isEmpty())
        maps.map_2_path = base::stored_path(map_2);
    maps.id_map_path = base::stored_path(id_map);
    maps.x_offset = data::leading_number(base::to_bytes(x_offset_->text()));
    maps.y_offset = data::to_int16(data::leading_number(base::to_bytes(y_offset_->text())),
                                   base::to_bytes(label(5)->text()));
    accept();
}

QString Form2::path_in(int index) const {
    return bare(path_field(index)->text());
}

} // namespace gfx
