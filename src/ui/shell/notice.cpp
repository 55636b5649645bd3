#include "shell/notice.h"

#include <chrono>

namespace shell {

namespace {

constexpr std::chrono::seconds shown_for(15);

} // namespace

Notice::Notice(QWidget* parent) : ElidedLabel(parent) {
    setObjectName(QStringLiteral("notice"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    time_.setObjectName(QStringLiteral("time"));
    time_.setSingleShot(true);
    time_.setInterval(shown_for);
    connect(&time_, &QTimer::timeout, this, &Notice::clear);
}

void Notice::tell(const QString& text) {
    setText(text);
    time_.start();
}

} // namespace shell
