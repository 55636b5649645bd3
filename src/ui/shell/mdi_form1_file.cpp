#include "base/files.h"
#include "base/messages.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "data/province_file.h"
#include "data/run_time_error.h"
#include "editor/panneau.h"
#include "gfx/form4.h"
#include "shell/backups.h"
#include "shell/file_check.h"
#include "shell/form_copies.h"
#include "shell/mdi_form1.h"
#include "shell/notice.h"
#include "shell/recovery_copies.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>

#include <algorithm>
#include <iostream>
#include <string>

namespace shell {

namespace {

/// Returns what the user is to know of a file whose reading lost provinces; empty when it did not.
std::string what_reading_lost(const std::string& path, std::string_view bytes,
                              const data::ReadReport& read, const LanguageTexts& language) {
    const std::string shown = base::shown_path(path);
    if (read.provinces == 0) {
        constexpr std::size_t first_words = 80;
        const auto first_line = bytes.substr(0, std::min(bytes.find_first_of("\r\n"), first_words));
        return language.text(Text::notice_no_province_read, {shown, first_line});
    }
    if (read.lone_line_feeds.empty())
        return {};
    std::string lines;
    for (const int line : read.lone_line_feeds)
        lines += (lines.empty() ? "" : ", ") + std::to_string(line);
    return language.text(Text::notice_provinces_lost, {shown, lines});
}

} // namespace

bool MDIForm1::may_replace_values() {
    return base::ask(session_, this, session_.language.message(data::Message::open_question),
                     base::DefaultAnswer::no);
}

void MDIForm1::ouvrir_csv() {
    if (!may_replace_values())
        return;
    session_.chooser_kind = gfx::ChooserKind::CSV;
    gfx::Form4(session_, this).exec();
    if (session_.cancelled_flag == 0 && keep_unsaved())
        open_province_file(session_.configuration.province_file_path);
}

void MDIForm1::open_after_question(const std::string& path) {
    if (may_replace_values() && keep_unsaved())
        open_province_file(path);
}

data::ReadReport MDIForm1::open_province_file(const std::string& path) {
    if (base::is_storable_text(base::path_text(path)))
        session_.configuration.province_file_path = path;
    const std::string bytes = base::read_file(path);
    panel_->forget_shown();
    saved_to_.clear();
    try {
        const auto read = data::read_provinces(bytes, session_.provinces);
        watched_.watch(path);
        settings_.add_file(path);
        show_invitation();
        file_problems_ = check_file(bytes).problems;
        notice_->keep(base::message_text(what_reading_lost(path, bytes, read, session_.language)));
        return read;
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
}

void MDIForm1::enregister() {
    session_.chooser_kind = gfx::ChooserKind::CSV2;
    gfx::Form4(session_, this).exec();
    if (session_.cancelled_flag == 0)
        save_to(session_.configuration.province_save_path);
}

void MDIForm1::reenregistrer() {
    if (saved_to_.empty())
        enregister();
    else
        save_to(saved_to_);
}

void MDIForm1::save_to(const std::string& path) {
    std::string notice = session_.language.text(Text::notice_saved, {base::shown_path(path)});
    try {
        back_up(session_, path);
    } catch (const data::RunTimeError& error) {
        notice =
            session_.language.text(Text::notice_backup_failed, {session_.language.text(error)});
    }
    base::replace_file(path, data::write_provinces(session_.provinces));
    session_.provinces.mark_saved();
    copies_.remove_own();
    saved_to_ = path;
    watched_.watch(path);
    settings_.add_file(path);
    file_problems_.clear(); // the file is the program's own now
    notice_->keep({});
    tell(base::message_text(notice));
}

bool MDIForm1::keep_unsaved() {
    try {
        copies_.keep_another();
        return true;
    } catch (const data::RunTimeError& error) {
        base::show_message(
            session_, this,
            session_.language.text(Text::recovery_copy_failed, {session_.language.text(error)}));
        return false;
    }
}

void MDIForm1::recuperer() {
    Form_copies form(session_, this);
    form.exec();
    if (!form.opened().empty() && keep_unsaved())
        open_copy(form.opened());
}

void MDIForm1::open_copy(const std::string& path) {
    const std::string bytes = base::read_file(path);
    saved_to_.clear();
    try {
        data::read_provinces(bytes, session_.provinces, data::Source::copy);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
    table_changed();
}

void MDIForm1::table_changed() {
    show_invitation();
    panel_->show_selection();
    if (map_)
        map_->clear_graphique();
}

void MDIForm1::follow_files() {
    const QWidget* active = QApplication::activeWindow();
    const bool is_beside = active != nullptr && active->parentWidget() == this &&
                           active->windowType() == Qt::Dialog && !active->isModal();
    if ((active != this && !is_beside) || QApplication::activePopupWidget() != nullptr)
        return;
    if (map_)
        map_->follow_files();
    if (watched_.has_changed())
        tell(base::message_text(session_.language.text(Text::notice_changed_outside,
                                                       {base::shown_path(watched_.path())})));
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    panel_->write_typed_text();
    if (!session_.maps.id_map_path.empty() &&
        base::ask(session_, this, session_.language.message(data::Message::save_question),
                  base::DefaultAnswer::yes, base::EscapeKey::stays))
        enregister();
    base::replace_file(base::in_folder(session_.program_folder, configuration_file),
                       write_configuration(session_.configuration, session_.graphics.files));
    settings_.keep_window(saveGeometry(), panel_->page());
    copies_.update();
    if (!copies_.own().empty())
        std::cerr << base::message_text(session_.language.text(Text::recovery_copy_written,
                                                               {base::shown_path(copies_.own())}))
                         .toStdString()
                  << std::endl;
    event->accept();
}

} // namespace shell
