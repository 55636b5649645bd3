#include "shell/invitation.h"

#include "base/captions.h"
#include "base/qt_text.h"

#include <QFocusEvent>

namespace shell {

Invitation::Invitation(const LanguageTexts& language, QWidget* parent) : QLabel(parent) {
    constexpr int margin = 16; // pixels
    const auto link = [&](const char* command, Text text) {
        return QStringLiteral("<a href=\"%1\">%2</a>")
            .arg(QLatin1String(command), base::own_text(language, text).toHtmlEscaped());
    };
    const QString sentence = base::to_qstring(language.text(Text::invitation)).toHtmlEscaped();
    setText(sentence.arg(link("ouvrir_cartes", Text::invitation_maps),
                         link("ouvrir_csv", Text::invitation_file)));
    setObjectName(QStringLiteral("invitation"));
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setAutoFillBackground(true); // the workspace behind it is dark in any palette
    setFrameShape(QFrame::StyledPanel);
    setMargin(margin);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
}

void Invitation::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        focusNextPrevChild(event->reason() == Qt::TabFocusReason);
}

} // namespace shell
