#include "gfx/form5.h"

#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "shell/session.h"

#include <QApplication>
#include <QKeyEvent>
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
    name_->setAccessibleName(base::without_marks(label->text()));
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

void Form5::keyPressEvent(QKeyEvent* event) {
    // Closed without a name the set would be added all the same, under the name before.
    if (!event->matches(QKeySequence::Cancel))
        QDialog::keyPressEvent(event);
}

void Form5::confirm() {
    // An accent typed on its own and its letter are one character of the code page.
    const QString name = name_->text().normalized(QString::NormalizationForm_C);
    if (name.isEmpty()) {
        base::show_message(session_, this, session_.language.message(data::Message::name_missing));
        return;
    }
    if (!base::is_storable_text(name)) {
        base::show_unstorable(session_, this);
        return;
    }
    session_.graphics.current_set_name = base::to_bytes(name);
    accept();
}

} // namespace gfx
