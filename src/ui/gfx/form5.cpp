#include "gfx/form5.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "shell/session.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace gfx {

namespace {

constexpr int smallest_width = 320; // pixels, for the title

} // namespace

Form5::Form5(shell::Session& session, QWidget* owner)
    : QDialog(owner), session_(session), name_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("Form5"));
    setWindowTitle(QApplication::applicationDisplayName());

    auto* label =
        new QLabel(base::dialog_caption(session.language, "Form5.Label1", "Name of the set"), this);
    label->setObjectName(QStringLiteral("Label1"));
    label->setBuddy(name_);
    name_->setObjectName(QStringLiteral("Text1"));
    // The key ends with a blank.
    auto* confirm =
        new QPushButton(base::dialog_caption(session.language, "Form5.Command1 ", "OK"), this);
    confirm->setObjectName(QStringLiteral("Command1"));
    confirm->setDefault(true);
    connect(confirm, &QPushButton::clicked, this, &Form5::confirm);

    setMinimumWidth(smallest_width);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(name_);
    column->addWidget(confirm, 0, Qt::AlignRight);
}

void Form5::confirm() {
    const std::string name = base::to_bytes(name_->text());
    if (name.empty()) {
        base::show_message(session_, this, session_.language.message(data::Message::name_missing));
        return;
    }
    session_.graphics.current_set_name = name;
    accept();
}

} // namespace gfx
