#pragma once

#include "shell/session.h"

#include <QRect>
#include <QString>

#include <functional>

class QPainter;

namespace map {

/// Shows on the map where the things that the mode places stand.
class OverlayPreview {
  public:
    /// The session must outlive the preview.
    explicit OverlayPreview(const shell::Session& session) : session_(session) {}

    /// Draws what lies within the rectangle (pixels of the map), the pointed province's things
    /// emphasised; -1 for none. Never throws.
    void paint(QPainter& painter, const QRect& exposed, int pointed_province);

    /// Returns what painting the province's things covers, in pixels of the map; empty for none.
    QRect bounds(int province) const;

    /// Forgets what was read from files.
    void forget_bitmaps() {}

    /// Receives what went wrong, in the user's terms.
    std::function<void(QString)> on_problem;

  private:
    const shell::Session& session_;
};

} // namespace map
