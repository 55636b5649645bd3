#include "shell/notice.h"

#include <chrono>

namespace shell {

namespace {

constexpr std::chrono::seconds shown_for(15);
constexpr int distance = 12; // pixels, to the texts beside it
constexpr int least = 150;   // pixels, however long the other texts are

} // namespace

Notice::Notice(QWidget* parent) : base::ElidedLabel(parent, Qt::ElideMiddle) {
    setObjectName(QStringLiteral("notice"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setMinimumWidth(least);
    setContentsMargins(distance, 0, distance, 0);
    time_.setObjectName(QStringLiteral("time"));
    time_.setSingleShot(true);
    time_.setInterval(shown_for);
    connect(&time_, &QTimer::timeout, this, [this] { setText(kept_); });
}

void Notice::tell(const QString& text) {
    setText(text);
    time_.start();
}

void Notice::keep(const QString& text) {
    kept_ = text;
    if (!time_.isActive())
        setText(kept_);
}

} // namespace shell
