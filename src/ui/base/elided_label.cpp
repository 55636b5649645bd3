#include "base/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace base {

ElidedLabel::ElidedLabel(QWidget* parent, Qt::TextElideMode dots) : QLabel(parent), dots_(dots) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::fitting_text() const {
    return fontMetrics().elidedText(text().simplified(), dots_, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || fitting_text() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), fitting_text(), foregroundRole());
}

} // namespace base
