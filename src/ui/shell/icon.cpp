#include "shell/icon.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygon>

namespace shell {

QIcon program_icon() {
    constexpr int size = 32; // pixels
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(40, 50, 60));
    painter.setBrush(QColor(62, 110, 160));
    painter.drawRoundedRect(QRect(1, 1, size - 3, size - 3), 5, 5);
    painter.setBrush(QColor(222, 196, 128));
    painter.drawPolygon(QPolygon({{2, 8}, {12, 4}, {19, 9}, {15, 17}, {6, 21}, {2, 19}}));
    painter.setBrush(QColor(108, 156, 84));
    painter.drawPolygon(QPolygon({{19, 9}, {28, 12}, {27, 22}, {18, 28}, {12, 24}, {15, 17}}));
    return QIcon(picture);
}

} // namespace shell
