#include "shell/etat.h"

#include "base/captions.h"
#include "map/lacking_positions.h"
#include "shell/place_check.h"

#include <QEvent>
#include <QStringList>

#include <algorithm>

namespace shell {

Etat::Etat(const Session& session, QWidget* parent)
    : base::ElidedLabel(parent), session_(session), sea_code_(sea_code(session.language)) {
    setObjectName(QStringLiteral("état"));
    parent->installEventFilter(this);
}

bool Etat::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Resize)
        updateGeometry(); // layouts keep the hints that they were given
    return ElidedLabel::eventFilter(object, event);
}

/// Returns the size of the words, but at most that part of the status bar's width.
QSize Etat::at_most(int part) const {
    const QSize whole = ElidedLabel::sizeHint();
    return {std::min(whole.width(), parentWidget()->width() / part), whole.height()};
}

void Etat::look() {
    const State now{session_.selection.version(), session_.provinces.version(),
                    session_.provinces.has_unsaved_changes(), session_.mode,
                    places_ ? places_->version() : 0};
    if (shown_ == now)
        return;
    shown_ = now;
    setText(words());
}

QString Etat::words() const {
    const auto& language = session_.language;
    const auto selected = static_cast<int>(session_.selection.provinces().size());
    QStringList parts;
    // What matters most in the mode comes first: the end may not fit.
    if (session_.mode != map::Mode::normal)
        parts += lacking();
    if (selected == 0) {
        const QString none = base::own_text(language, Text::etat_none_selected);
        parts += parts.empty() ? none : none.left(1).toLower() + none.mid(1);
    } else {
        parts +=
            base::own_text(language, selected == 1 ? Text::etat_one_selected : Text::etat_selected,
                           QString::number(selected));
    }
    if (session_.provinces.has_unsaved_changes())
        parts += base::own_text(language, Text::etat_unsaved);
    return parts.join(QStringLiteral(", "));
}

QString Etat::lacking() const {
    const int count = map::lacking_positions(session_.provinces, session_.mode, sea_code_,
                                             places_ ? places_->complete_index() : nullptr);
    return base::own_text(session_.language, Text::etat_lacking, QString::number(count));
}

} // namespace shell
