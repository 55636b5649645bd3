#include "shell/messages.h"

#include "shell/qt_text.h"

#include <QApplication>
#include <QMessageBox>

#include <stdexcept>

namespace shell {

namespace {

int show_box(const Session& session, QWidget* owner, const char* name, QMessageBox::Icon icon,
             const std::string& text, QMessageBox::StandardButtons buttons,
             QMessageBox::StandardButton preset) {
    if (session.unattended)
        throw std::runtime_error(text);
    QMessageBox box(icon, QApplication::applicationDisplayName(), to_qstring(text), buttons, owner);
    box.setObjectName(QString::fromLatin1(name));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(preset);
    return box.exec();
}

} // namespace

void show_message(const Session& session, QWidget* owner, const std::string& text) {
    show_box(session, owner, "message", QMessageBox::Warning, text, QMessageBox::Ok,
             QMessageBox::Ok);
}

bool ask(const Session& session, QWidget* owner, const std::string& text, DefaultAnswer preset) {
    return show_box(session, owner, "message", QMessageBox::Question, text,
                    QMessageBox::Yes | QMessageBox::No,
                    preset == DefaultAnswer::yes ? QMessageBox::Yes : QMessageBox::No) ==
           QMessageBox::Yes;
}

void show_error(const Session& session, QWidget* owner, const data::RunTimeError& error) {
    show_box(session, owner, "run_time_error", QMessageBox::Critical, error.what(), QMessageBox::Ok,
             QMessageBox::Ok);
}

} // namespace shell
