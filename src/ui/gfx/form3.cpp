#include "gfx/form3.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "gfx/file_list.h"
#include "gfx/form4.h"
#include "gfx/form5.h"
#include "gfx/load_gfx_fichier.h"
#include "shell/session.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace gfx {

namespace {

constexpr QSize initial_size(640, 560);

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

QListWidget* Form3::make_list(SpriteKind kind) {
    auto* made = new QListWidget(this);
    made->setObjectName(control_name("List_", kind));
    lists_[kind] = made;
    return made;
}

QPushButton* Form3::make_arrow(const char* name, SpriteKind kind, const char* caption) {
    auto* arrow = new QPushButton(base::from_utf8(caption), this);
    arrow->setObjectName(control_name(name, kind));
    arrow->setAutoDefault(false);
    return arrow;
}

QPushButton* Form3::make_button(const QString& name, const char* design_caption) {
    const std::string key = "Form3." + base::to_bytes(name);
    auto* button =
        new QPushButton(base::dialog_caption(session_.language, key, design_caption), this);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter in a list must press none of the buttons
    return button;
}

void Form3::lay_out() {
    auto* grid = new QGridLayout(this);
    int line = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const SpriteKind kind = rows[i].kind;
        const std::string index = std::to_string(i);
        auto* heading =
            new QLabel(base::dialog_caption(session_.language, "Form3.Label1 (" + index + ")",
                                            rows[i].heading),
                       this);
        heading->setObjectName(base::to_qstring("Label1(" + index + ")"));
        auto* sets = make_list(kind);
        heading->setBuddy(sets);
        auto* add = make_arrow("entre_", kind, "→");
        auto* take_out = make_arrow("sort_", kind, "←");
        connect(add, &QPushButton::clicked, this, [this, kind] { add_sets(kind); });
        connect(take_out, &QPushButton::clicked, this, [this, kind] { take_set_out(kind); });

        auto* arrows = new QVBoxLayout;
        arrows->addWidget(add);
        arrows->addWidget(take_out);
        arrows->addStretch();
        grid->addWidget(heading, line++, 2);
        grid->addLayout(arrows, line, 1);
        grid->addWidget(sets, line++, 2);
    }
    grid->addWidget(files_, 0, 0, line, 1);

    auto* terrain_art = make_button(QStringLiteral("Command1"), "Terrain art folder...");
    auto* graphics = make_button(QStringLiteral("Command2"), "Graphics folder...");
    auto* close_button = make_button(QStringLiteral("Command3"), "Close");
    connect(terrain_art, &QPushButton::clicked, this, [this] { choose_folder(ChooserKind::GFX2); });
    connect(graphics, &QPushButton::clicked, this, [this] {
        choose_folder(ChooserKind::GFX);
        show_descriptors();
    });
    connect(close_button, &QPushButton::clicked, this, &Form3::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(graphics);
    buttons->addWidget(terrain_art);
    buttons->addStretch();
    buttons->addWidget(close_button);
    grid->addLayout(buttons, line, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    resize(initial_size);
}

void Form3::show_descriptors() {
    const QString folder =
        QDir(base::native_path(session_.configuration.graphics_folder)).absolutePath();
    folder_ = base::stored_path(folder);
    files_->show_files(folder, QStringLiteral("*.spr"));
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
    Form5(session_, this).exec();
    load_gfx_fichier(session_, info(kind).word, base::in_folder(folder_, file),
                     graphics.current_set_name);
    list(kind).addItem(base::to_qstring(graphics.current_set_name));
}

void Form3::take_set_out(SpriteKind kind) {
    auto& graphics = session_.graphics;
    auto& sets = list(kind);
    const auto selected = sets.selectedItems();
    graphics.current_set_name =
        selected.isEmpty() ? std::string() : base::to_bytes(selected.front()->text());
    graphics.files.remove(graphics.current_set_name);
    if (sets.count() == 0)
        return;
    --graphics.sprites.of(kind).count;
    if (selected.isEmpty())
        throw data::RunTimeError(data::ErrorNumber::invalid_procedure_call,
                                 "sprite sets of the kind " + std::string(info(kind).word) +
                                     ": no set is selected, one to take out was expected");
    delete selected.front();
    graphics.sprites.take_rows_out(kind, graphics.current_set_name);
}

void Form3::choose_folder(ChooserKind kind) {
    session_.chooser_kind = kind;
    Form4(session_, this).exec();
}

} // namespace gfx
