#include "shell/frm_about.h"

#include "base/captions.h"
#include "shell/session.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace shell {

namespace {

constexpr double title_size = 1.8; // of the text's size
constexpr int margin = 24;         // pixels around the texts
constexpr int minimum_width = 300; // of the texts

QLabel* add_label(QVBoxLayout* column, const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    column->addWidget(label, 0, Qt::AlignHCenter);
    return label;
}

} // namespace

frmAbout::frmAbout(const Session& session, QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmAbout"));
    const QString title = QApplication::applicationDisplayName();
    const QString about_word =
        base::caption_text(session.language.exact_caption("about").value_or(""));
    setWindowTitle(about_word + ' ' + title);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    QLabel* title_label = add_label(column, "lblTitle", title);
    QFont font = title_label->font();
    font.setPointSizeF(font.pointSizeF() * title_size);
    font.setBold(true);
    title_label->setFont(font);
    add_label(column, "lblVersion",
              base::own_text(session.language, Text::about_version,
                             QCoreApplication::applicationVersion()));
    column->addSpacing(margin / 2);
    add_label(column, "Label1", base::own_text(session.language, Text::about_credit));
    column->addSpacing(margin);

    auto* close = new QPushButton(base::own_text(session.language, Text::about_ok));
    close->setObjectName(QStringLiteral("cmdOK"));
    close->setDefault(true);
    column->addWidget(close, 0, Qt::AlignHCenter);
    connect(close, &QPushButton::clicked, this, &frmAbout::accept);

    column->addStrut(minimum_width);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace shell
