#include "editor/variant_label.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace editor {

VariantLabel::VariantLabel(QWidget* parent) : QLabel(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void VariantLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

void VariantLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}

void VariantLabel::focusInEvent(QFocusEvent* event) {
    setFrameShadow(QFrame::Plain);
    QLabel::focusInEvent(event);
}

void VariantLabel::focusOutEvent(QFocusEvent* event) {
    setFrameShadow(QFrame::Sunken);
    QLabel::focusOutEvent(event);
}

} // namespace editor
