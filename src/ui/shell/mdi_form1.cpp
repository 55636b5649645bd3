#include "shell/mdi_form1.h"

#include "base/captions.h"
#include "base/files.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "editor/panneau.h"
#include "gfx/load_gfx_fichier.h"
#include "shell/menus.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <array>

namespace shell {

namespace {

constexpr qsizetype most_languages = 10;
constexpr QSize first_size(1280, 720);
constexpr std::array position_items = {"ville_menu", "armées_menu", "manuf_menu", "port_menu",
                                       "dessin_menu"};

} // namespace

MDIForm1::MDIForm1(Session& session) : session_(session) {
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowTitle(QApplication::applicationDisplayName());
    resize(first_size);
    start_up();
}

void MDIForm1::start_up() {
    read_configuration_file();
    read_language_file();
    build_menus();
    fill_language_menu();
    build_workspace();
    build_status_bar();
    enable_map_items(false);
    action("carte_2")->setEnabled(false);
    for (const auto* name : position_items)
        action(name)->setEnabled(!is_first_run_);
    check_mode();
    show_status_text(map::info(session_.mode).status_text);
    options();
}

void MDIForm1::read_configuration_file() {
    const std::string path = base::in_folder(session_.program_folder, configuration_file);
    is_first_run_ = !QFileInfo(base::native_path(path)).isFile();
    if (is_first_run_)
        return;
    try {
        read_configuration(base::read_file(path), session_.configuration,
                           [this](const gfx::GraphicsFile& file) {
                               gfx::load_gfx_fichier(session_, file.kind, file.path, file.set_name);
                           });
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
}

void MDIForm1::read_language_file() {
    session_.language = texts_of(session_.configuration.language_file);
}

LanguageTexts MDIForm1::texts_of(const std::string& language_file) const {
    const std::string path = base::in_folder(session_.program_folder, language_file);
    const std::string bytes = base::read_file(path);
    try {
        return LanguageTexts(bytes);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
}

void MDIForm1::build_menus() {
    menuBar()->setObjectName(QStringLiteral("menu_bar"));
    for (const auto& item : menu_items()) {
        const QString name = base::from_utf8(item.name);
        const QString caption = base::frame_caption(session_.language, item.name, item.caption);
        QMenu* parent = item.parent.empty() ? nullptr : action(item.parent)->menu();
        if (item.after_separator)
            parent->addSeparator();
        QAction* made = nullptr;
        if (item.command) {
            made = new QAction(caption, this);
            connect(made, &QAction::triggered, this, [this, command = item.command] {
                panel_->write_typed_text();
                command(*this);
            });
        } else {
            auto* menu = new QMenu(caption, this);
            menu->setObjectName(name);
            made = menu->menuAction();
        }
        made->setObjectName(name);
        made->setData(caption); // an item whose caption changes finds it here again
        made->setShortcut(QKeySequence(base::from_utf8(item.shortcut)));
        made->setCheckable(item.checkable);
        if (parent)
            parent->addAction(made);
        else
            menuBar()->addAction(made);
    }
}

void MDIForm1::fill_language_menu() {
    const auto files = QDir(base::native_path(session_.program_folder))
                           .entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const auto& file : files) {
        const auto dot = file.indexOf(QLatin1Char('.'));
        if (file.mid(dot + 1).compare(QLatin1String("lng"), Qt::CaseInsensitive) != 0 || dot < 0)
            continue;
        if (languages_.size() == most_languages)
            break;
        const auto item = static_cast<int>(languages_.size());
        languages_ += file.left(dot);
        QString caption = languages_.last();
        auto* made =
            action("langue")->menu()->addAction(caption.replace('&', QStringLiteral("&&")));
        made->setObjectName(QStringLiteral("langues(%1)").arg(item));
        made->setCheckable(true);
        const bool in_use = file.compare(base::to_qstring(session_.configuration.language_file),
                                         Qt::CaseInsensitive) == 0;
        made->setChecked(in_use);
        connect(made, &QAction::triggered, this, [this, item, made, in_use] {
            made->setChecked(in_use); // the mark tells what is in use, not what was chosen
            panel_->write_typed_text();
            choose_language(item);
        });
    }
}

void MDIForm1::build_workspace() {
    auto* middle = new QWidget(this);
    auto* row = new QHBoxLayout(middle);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    workspace_ = new QMdiArea(middle);
    workspace_->setObjectName(QStringLiteral("mdi_area"));
    workspace_->viewport()->installEventFilter(this);
    panel_ = new editor::Panneau(session_, middle);
    row->addWidget(workspace_, 1);
    row->addWidget(panel_);
    setCentralWidget(middle);
    connect(panel_, &editor::Panneau::selection_entered, this, [this] { apply_selection(); });
}

void MDIForm1::build_status_bar() {
    statusBar()->setObjectName(QStringLiteral("Bar"));
    mode_text_ = new QLabel(statusBar());
    mode_text_->setObjectName(QStringLiteral("Bar(1)"));
    pointer_text_ = new QLabel(statusBar());
    pointer_text_->setObjectName(QStringLiteral("Bar(2)"));
    statusBar()->addWidget(mode_text_, 1);
    statusBar()->addPermanentWidget(pointer_text_);
    pointer_text_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("id = 00000")));
}

QAction* MDIForm1::action(std::string_view name) const {
    auto* found = findChild<QAction*>(base::from_utf8(name));
    Q_ASSERT_X(found, "menu", std::string(name).c_str());
    return found;
}

void MDIForm1::show_status_text(int number) {
    statusBar()->clearMessage(); // a reason from the mode before would hide the text
    mode_text_->setText(base::to_qstring(session_.language.status(number)));
}

} // namespace shell
