#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace map {

/// Shows that the program is busy for as long as it lives.
class WaitCursor {
  public:
    WaitCursor() {
        if (has_cursor_)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() {
        if (has_cursor_)
            QGuiApplication::restoreOverrideCursor();
    }

  private:
    // A run without windows has no pointer either.
    bool has_cursor_ = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
};

} // namespace map
