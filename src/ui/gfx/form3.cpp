#include "gfx/form3.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "gfx/choice_list.h"
#include "gfx/file_list.h"
#include "gfx/form4.h"
#include "gfx/form5.h"
#include "gfx/load_gfx_fichier.h"
#include "shell/session.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace gfx {

namespace {

constexpr QSize initial_size(640, 560);
constexpr QSize room_for_the_frame(16, 48); // that the desktop draws around the dialog

/// A kind's row of the dialog, and its heading where the language file has none.
struct Row {
    SpriteKind kind;
    const char* heading;
};

constexpr std::array<Row, sprite_kinds.size()> rows = {{
    {SpriteKind::ville, "City sets"},
    {SpriteKind::armees, "Army sets"},
    {SpriteKind::manuf, "Manufactory sets"},
    {SpriteKind::port, "Port sets"},
}};

QString control_name(const char* prefix, SpriteKind kind) {
    return QString::fromLatin1(prefix) + base::to_qstring(info(kind).word);
}

} // namespace

Form3::Form3(shell::Session& session, QWidget* owner)
    : QDialog(owner), session_(session), files_(new FileList(this)) {
    setObjectName(QStringLiteral("Form3"));
    setWindowTitle(QApplication::applicationDisplayName());
    files_->setObjectName(QStringLiteral("File1"));
    lay_out();
    show_descriptors();
    for (const auto& row : rows)
        show_sets(row.kind);
}

void Form3::lay_out() {
    auto* grid = new QGridLayout(this);
    lay_out_kinds(*grid);
    const int line = grid->rowCount();
    const QString heading = base::own_text(session_.language, shell::Text::sets_files);
    auto* label = new QLabel(heading, this);
    label->setObjectName(QStringLiteral("Label2"));
    label->setBuddy(files_);
    files_->setAccessibleName(heading);
    grid->addWidget(label, 0, 0);
    grid->addWidget(files_, 1, 0, line - 1, 1);

    auto* graphics = make_captioned_button("Command2", "Graphics folder...");
    auto* terrain_art = make_captioned_button("Command1", "Terrain art folder...");
    auto* close_button = make_captioned_button("Command3", "Close");
    connect(graphics, &QPushButton::clicked, this, [this] {
        choose_folder(ChooserKind::GFX);
        show_descriptors();
    });
    connect(terrain_art, &QPushButton::clicked, this, [this] { choose_folder(ChooserKind::GFX2); });
    connect(close_button, &QPushButton::clicked, this, &Form3::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(graphics);
    buttons->addWidget(terrain_art);
    buttons->addStretch();
    buttons->addWidget(close_button);
    grid->addLayout(buttons, line, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    resize(initial_size.boundedTo(screen()->availableSize() - room_for_the_frame));
}

void Form3::lay_out_kinds(QGridLayout& grid) {
    int line = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const SpriteKind kind = rows[i].kind;
        const std::string index = std::to_string(i);
        const QString heading = base::dialog_caption(
            session_.language, "Form3.Label1 (" + index + ")", rows[i].heading);
        auto* label = new QLabel(heading, this);
        label->setObjectName(base::to_qstring("Label1(" + index + ")"));
        grid.addWidget(label, line++, 2);
        // The focus goes over the screen by columns: the arrows stand before the list.
        grid.addLayout(make_arrows(kind, base::without_marks(heading)), line, 1);
        grid.addWidget(make_list(kind, base::without_marks(heading)), line++, 2);
        label->setBuddy(&list(kind));
    }
}

QLayout* Form3::make_arrows(SpriteKind kind, const QString& heading) {
    auto* add = make_button(control_name("entre_", kind), base::from_utf8("→"));
    auto* take_out = make_button(control_name("sort_", kind), base::from_utf8("←"));
    add->setToolTip(base::own_text(session_.language, shell::Text::sets_add, heading));
    take_out->setToolTip(base::own_text(session_.language, shell::Text::sets_take_out, heading));
    auto* arrows = new QVBoxLayout;
    for (QPushButton* arrow : {add, take_out}) {
        arrow->setAccessibleName(arrow->toolTip());
        arrows->addWidget(arrow);
    }
    arrows->addStretch();
    connect(add, &QPushButton::clicked, this, [this, kind] { add_sets(kind); });
    connect(take_out, &QPushButton::clicked, this, [this, kind] { take_set_out(kind); });
    return arrows;
}

ChoiceList* Form3::make_list(SpriteKind kind, const QString& heading) {
    auto* made = new ChoiceList(this);
    made->setObjectName(control_name("List_", kind));
    made->setAccessibleName(heading);
    lists_[kind] = made;
    return made;
}

QPushButton* Form3::make_button(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter in a list must press none of the buttons
    return button;
}

QPushButton* Form3::make_captioned_button(const char* name, const char* design_caption) {
    const std::string key = std::string("Form3.") + name;
    return make_button(QString::fromLatin1(name),
                       base::dialog_caption(session_.language, key, design_caption));
}

void Form3::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (is_enter && button != nullptr && !event->isAutoRepeat())
        button->click();
    else if (!is_enter)
        QDialog::keyPressEvent(event);
}

void Form3::show_descriptors() {
    folder_ = QDir(base::native_path(session_.configuration.graphics_folder)).absolutePath();
    files_->show_files(folder_, QStringLiteral("*.spr"));
}

void Form3::show_sets(SpriteKind kind) {
    const auto& sprites = session_.graphics.sprites.of(kind).rows;
    for (int row = 0; row < info(kind).set_limit; ++row) {
        const std::string& name = sprites.at(static_cast<std::size_t>(row)).set_name;
        if (!name.empty())
            list(kind).addItem(base::to_qstring(name));
    }
}

void Form3::add_sets(SpriteKind kind) {
    auto& graphics = session_.graphics;
    if (graphics.sprites.of(kind).count >= info(kind).set_limit) {
        base::show_message(session_, this,
                           session_.language.message(data::Message::set_limit_reached));
        return;
    }
    const std::string file = files_->file_name();
    if (file.empty())
        return;
    if (!base::is_storable_path(folder_)) {
        base::show_unstorable(session_, this);
        return;
    }
    Form5(session_, this).exec();
    load_gfx_fichier(session_, info(kind).word, base::in_folder(base::stored_path(folder_), file),
                     graphics.current_set_name);
    list(kind).addItem(base::to_qstring(graphics.current_set_name));
}

void Form3::take_set_out(SpriteKind kind) {
    auto& graphics = session_.graphics;
    auto& sets = list(kind);
    const auto selected = sets.selectedItems();
    graphics.current_set_name =
        selected.isEmpty() ? std::string() : base::to_bytes(selected.front()->text());
    remove_gfx_fichier(graphics.current_set_name);
    if (sets.count() == 0)
        return;
    --graphics.sprites.of(kind).count;
    if (selected.isEmpty())
        throw data::RunTimeError(data::ErrorNumber::invalid_procedure_call,
                                 data::Phrase(data::Text::reason_no_set_chosen))
            .within(data::Phrase(data::Text::place_sprite_sets, info(kind).word));
    delete selected.front();
    auto& previewed = graphics.previewed_row[kind];
    const auto& rows = graphics.sprites.of(kind).rows;
    const std::string previewed_set = rows.at(static_cast<std::size_t>(previewed)).set_name;
    graphics.sprites.take_rows_out(kind, graphics.current_set_name);
    const auto still_there = std::find_if(rows.begin(), rows.end(), [&](const Sprite& sprite) {
        return sprite.set_name == previewed_set;
    });
    previewed = still_there == rows.end() || previewed_set == graphics.current_set_name
                    ? 0
                    : static_cast<int>(still_there - rows.begin());
}

void Form3::remove_gfx_fichier(const std::string& set_name) {
    session_.graphics.files.remove(set_name);
}

void Form3::choose_folder(ChooserKind kind) {
    session_.chooser_kind = kind;
    Form4 chooser(session_, this);
    connect(&chooser, &Form4::terrain_art_accepted, this, &Form3::terrain_art_accepted);
    chooser.exec();
}

} // namespace gfx
