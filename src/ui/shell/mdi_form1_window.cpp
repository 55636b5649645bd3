#include "base/files.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "editor/panneau.h"
#include "shell/dropped_files.h"
#include "shell/invitation.h"
#include "shell/mdi_form1.h"
#include "shell/recovery_copies.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMdiArea>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

/// The frame as a window of the desktop: how it comes up, and what is dropped onto it.
namespace shell {

void MDIForm1::show_as_left() {
    panel_->show_page(settings_.page());
    const QSize room = screen()->availableSize();
    if (restoreGeometry(settings_.geometry()) ||
        (room.width() > width() && room.height() > height()))
        show();
    else
        showMaximized(); // the screen could not hold it together with its title bar
    tell_of_new_copies();
}

void MDIForm1::show_page(int page) {
    panel_->show_page(page);
}

void MDIForm1::tell_of_new_copies() {
    const auto age = [](const std::string& path) {
        return QFileInfo(base::native_path(path)).lastModified();
    };
    const auto copies = settings_.new_copies(recovery_copies(session_));
    if (copies.empty())
        return;
    const auto newest =
        std::max_element(copies.begin(), copies.end(), [&](const auto& left, const auto& right) {
            return age(left) < age(right);
        });
    const std::string shown = base::shown_path(*newest);
    tell(base::message_text(copies.size() == 1
                                ? session_.language.text(Text::notice_one_new_copy, {shown})
                                : session_.language.text(Text::notice_new_copies,
                                                         {std::to_string(copies.size()), shown})));
}

void MDIForm1::build_invitation() {
    invitation_ = new Invitation(session_.language, workspace_->viewport());
    connect(invitation_, &QLabel::linkActivated, this,
            [this](const QString& command) { action(command.toStdString())->trigger(); });
    auto* middle = new QVBoxLayout(workspace_->viewport());
    middle->addWidget(invitation_, 0, Qt::AlignVCenter);
    show_invitation();
}

void MDIForm1::show_invitation() {
    invitation_->setVisible(session_.maps.id_map_path.empty() && session_.provinces.version() == 0);
}

void MDIForm1::dragEnterEvent(QDragEnterEvent* event) {
    const bool is_free = QApplication::activeModalWidget() == nullptr;
    if (is_free && dropped_files(*event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MDIForm1::dropEvent(QDropEvent* event) {
    const auto files = dropped_files(*event->mimeData());
    if (!files)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program from which the files come waits for the end of this event, but not for an answer.
    QTimer::singleShot(0, this, [this, files = *files] {
        panel_->write_typed_text();
        if (files.has_maps())
            open_dropped_maps(files);
        if (!files.province_file.empty())
            open_after_question(files.province_file);
    });
}

void MDIForm1::open_dropped_maps(const DroppedFiles& files) {
    map::Maps proposed = session_.maps;
    const auto take = [](const std::string& dropped, std::string& place) {
        if (!dropped.empty())
            place = dropped;
    };
    take(files.map_1, proposed.map_1_path);
    take(files.map_2, proposed.map_2_path);
    take(files.id_map, proposed.id_map_path);
    ask_for_maps(proposed);
}

} // namespace shell
