#include "shell/mdi_form1.h"

#include "base/captions.h"
#include "base/elided_label.h"
#include "base/qt_text.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "editor/panneau.h"
#include "shell/coloriage.h"
#include "shell/etat.h"
#include "shell/menus.h"
#include "shell/notice.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QWindow>

#include <array>
#include <stdexcept>

namespace shell {

namespace {

constexpr qsizetype most_languages = 10;
constexpr QSize first_size(1280, 720);
constexpr int name_width = 30; // characters, of a name and two numbers of up to five digits
constexpr std::array position_items = {"ville_menu", "armées_menu", "manuf_menu", "port_menu",
                                       "dessin_menu"};

} // namespace

MDIForm1::MDIForm1(Session& session, RecoveryCopies& copies, Run run)
    : session_(session), copies_(copies), settings_(session) {
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowTitle(QApplication::applicationDisplayName());
    resize(first_size);
    setAcceptDrops(true);
    build_menus();
    fill_language_menu();
    connect(action("fichier")->menu(), &QMenu::aboutToShow, this, &MDIForm1::fill_recent_menus);
    build_workspace();
    build_invitation();
    build_status_bar();
    build_colours();
    set_up_items(run);
    show_status_text(map::info(session_.mode).status_text);
    // Queued: in the middle of a change of the focus no exception may pass, and a frame that is
    // being destroyed has nothing to look after.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &MDIForm1::follow_files,
            Qt::QueuedConnection);
}

void MDIForm1::build_menus() {
    menuBar()->setObjectName(QStringLiteral("menu_bar"));
    for (const auto& item : menu_items()) {
        const QString name = base::from_utf8(item.name);
        const QString caption =
            item.text ? base::caption_text(session_.language.text(*item.text))
                      : base::frame_caption(session_.language, item.name, item.caption);
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
            menu->setToolTipsVisible(true);
            made = menu->menuAction();
        }
        made->setObjectName(name);
        actions_.emplace(item.name, made);
        made->setData(caption); // an item whose caption changes finds it here again
        if (!item.shortcuts.empty())
            made->setShortcuts(QKeySequence::listFromString(base::from_utf8(item.shortcuts)));
        made->setShortcutContext(Qt::ApplicationShortcut); // in the dialogs one works beside, too
        made->setCheckable(item.checkable);
        if (const auto tip = menu_tip(item.name))
            made->setToolTip(base::own_text(session_.language, *tip));
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
        auto* made = action("langue")->menu()->addAction(base::item_text(languages_.last()));
        made->setObjectName(QStringLiteral("langues(%1)").arg(item));
        made->setToolTip(base::own_text(session_.language, Text::tip_langue));
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
    connect(panel_, &editor::Panneau::told, this, &MDIForm1::tell);
    connect(panel_, &editor::Panneau::selection_entered, this, [this] { apply_selection(); });
    auto* to_selection = new QShortcut(QKeySequence(QStringLiteral("Ctrl+L")), this);
    to_selection->setContext(Qt::ApplicationShortcut);
    connect(to_selection, &QShortcut::activated, this, &MDIForm1::focus_selection_text);
}

void MDIForm1::build_status_bar() {
    statusBar()->setObjectName(QStringLiteral("Bar"));
    mode_text_ = new base::ElidedLabel(statusBar());
    mode_text_->setObjectName(QStringLiteral("Bar(1)"));
    mode_text_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    notice_ = new Notice(statusBar());
    pointer_text_ = new QLabel(statusBar());
    pointer_text_->setObjectName(QStringLiteral("Bar(2)"));
    etat_ = new Etat(session_, statusBar());
    etat_->look();
    pointed_name_ = new base::ElidedLabel(statusBar(), Qt::ElideMiddle);
    pointed_name_->setObjectName(QStringLiteral("nom"));
    // Its width does not hang on its text: the others are not to move whenever the pointer does.
    pointed_name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    pointed_name_->setMinimumWidth(fontMetrics().averageCharWidth() * name_width);
    // A permanent widget is never covered; most of the room that the others leave is the notice's.
    statusBar()->addPermanentWidget(mode_text_);
    statusBar()->addPermanentWidget(notice_, 3);
    statusBar()->addPermanentWidget(etat_);
    statusBar()->addPermanentWidget(pointed_name_, 1);
    statusBar()->addPermanentWidget(pointer_text_);
    pointer_text_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("id = 00000")));
}

void MDIForm1::set_up_items(Run run) {
    enable_map_items(false);
    for (const auto* name : {"carte_2", "sélection_précédente", "sélection_suivante"})
        action(name)->setEnabled(false);
    for (const auto* name : position_items)
        action(name)->setEnabled(run == Run::later);
    check_mode();
    group_previews();
    options();
}

QAction* MDIForm1::action(std::string_view name) const {
    const auto found = actions_.find(name);
    if (found == actions_.end())
        throw std::out_of_range("no menu item " + std::string(name));
    return found->second;
}

void MDIForm1::focus_selection_text() {
    if (session_.mode != map::Mode::normal)
        enter_mode(map::Mode::normal); // the other modes hide the panel
    activateWindow();                  // the keys may come from a dialog
    panel_->focus_selection_text();
}

void MDIForm1::look() {
    etat_->look();
    coloriage_->look();
}

void MDIForm1::tell(const QString& notice) {
    notice_->tell(notice);
}

void MDIForm1::show_status_text(int number) {
    mode_text_->setText(base::message_text(session_.language.status(number)));
}

} // namespace shell
