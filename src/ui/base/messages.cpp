#include "base/messages.h"

#include "base/shown_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include <stdexcept>

namespace base {

namespace {

class Box : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;
    EscapeKey escape = EscapeKey::is_no;

    /// A key that is held since before the box came up does not press a button.
    bool eventFilter(QObject* button, QEvent* event) override {
        const bool is_held =
            event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
        return is_held || QMessageBox::eventFilter(button, event);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (escape == EscapeKey::is_no || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (escape == EscapeKey::is_no)
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }
};

int show_box(QWidget* owner, const char* name, QMessageBox::Icon icon, const std::string& text,
             QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset,
             EscapeKey escape = EscapeKey::is_no) {
    Box box(icon, QApplication::applicationDisplayName(), message_text(text), buttons, owner);
    box.escape = escape;
    box.setObjectName(QString::fromLatin1(name));
    box.setTextFormat(Qt::PlainText);
    // Text that can be marked also breaks within a long path instead of leaving the box.
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setDefaultButton(preset);
    for (QAbstractButton* button : box.buttons())
        button->installEventFilter(&box);
    return box.exec();
}

void throw_if_unattended(const shell::Session& session, const std::string& text) {
    if (session.unattended)
        throw std::runtime_error(text);
}

} // namespace

void show_message(const shell::Session& session, QWidget* owner, const std::string& text) {
    throw_if_unattended(session, text);
    show_box(owner, "message", QMessageBox::Warning, text, QMessageBox::Ok, QMessageBox::Ok);
}

void show_unstorable(const shell::Session& session, QWidget* owner) {
    show_message(session, owner, session.language.text(shell::Text::choice_unstorable));
}

bool ask(const shell::Session& session, QWidget* owner, const std::string& text,
         DefaultAnswer preset, EscapeKey escape) {
    throw_if_unattended(session, text);
    const auto button = preset == DefaultAnswer::yes ? QMessageBox::Yes : QMessageBox::No;
    return show_box(owner, "message", QMessageBox::Question, text,
                    QMessageBox::Yes | QMessageBox::No, button, escape) == QMessageBox::Yes;
}

void show_error(const shell::Session& session, QWidget* owner, const data::RunTimeError& error) {
    const std::string text = session.language.text(error);
    throw_if_unattended(session, text);
    show_error_box(owner, text);
}

void show_error_box(QWidget* owner, const std::string& text) {
    show_box(owner, "run_time_error", QMessageBox::Critical, text, QMessageBox::Ok,
             QMessageBox::Ok);
}

} // namespace base
