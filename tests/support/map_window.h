#pragma once

#include "data/run_time_error.h"
#include "map/form1.h"
#include "support/bitmaps.h"
#include "support/folder.h"
#include "support/leaks.h"
#include "support/message_boxes.h"

#include <QApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace map_window {

using map::Mode;

inline constexpr int width = 900;
inline constexpr int height = 700;
inline constexpr int cell = 100; // pixels; provinces are squares, 1 to 9 in the first row
inline constexpr QRgb paper = 0xFFE0D0C0;

inline int province_at(int x, int y) {
    return y / cell * (width / cell) + x / cell + 1;
}

inline std::string id_map(int foreign_x = -1, int foreign_y = -1) {
    return bitmaps::painted(width, height, [=](int x, int y) {
        const bool foreign = foreign_x == x && foreign_y == y;
        return bitmaps::colour_of(foreign ? 3000 : province_at(x, y));
    });
}

inline std::string plain_map(QRgb colour = paper, int map_width = width) {
    return bitmaps::painted(map_width, height, [=](int, int) { return colour & 0xFFFFFF; });
}

/// Collects what a widget paints.
class PaintedRegion : public QObject {
  public:
    explicit PaintedRegion(QWidget* widget) { widget->installEventFilter(this); }
    QRegion region;
    int times = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region |= static_cast<QPaintEvent*>(event)->region();
            ++times;
        }
        return false;
    }
};

/// A map window on small maps of its own.
class Form1 : public testing::Test {
  protected:
    Form1() {
        static const std::string plain = plain_map();
        static const std::string provinces = id_map();
        session.maps.map_1_path = folder.write("1.bmp", plain);
        session.maps.id_map_path = folder.write("id.bmp", provinces);
    }

    /// Opens the maps in a window of the given size.
    void open(QSize size = {width, height}) {
        form = std::make_unique<map::Form1>(session);
        QObject::connect(form.get(), &map::Form1::province_clicked, [this](int province, bool add) {
            clicked += (add ? "+" : "") + std::to_string(province) + " ";
        });
        form->resize(size);
        form->show();
        QCoreApplication::processEvents();
    }
    QWidget* surface(const char* name = "Picture1") const {
        return form->findChild<QWidget*>(QString::fromLatin1(name));
    }
    QImage seen(const char* name = "Picture1") const {
        return surface(name)->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(surface(), button, keys, point);
    }
    std::string city(int province) const {
        return session.provinces.cell(province, data::TableColumn{27}) + "," +
               session.provinces.cell(province, data::TableColumn{28});
    }
    QPoint corner() const { return -surface()->mapTo(form.get(), QPoint(0, 0)); }

    support::Folder folder;
    shell::Session session;
    std::unique_ptr<map::Form1> form;
    std::string clicked;
};

} // namespace map_window
