#include "shell/copy_timer.h"

#include "base/shown_text.h"

#include <exception>
#include <utility>

namespace shell {

namespace {

constexpr int delay = 1500; // milliseconds from a change to its copy

}

CopyTimer::CopyTimer(RecoveryCopies& copies, const Session& session)
    : copies_(copies), session_(session) {
    timer_.setSingleShot(true);
    timer_.setInterval(delay);
    connect(&timer_, &QTimer::timeout, this, &CopyTimer::write);
}

void CopyTimer::look() {
    if (!timer_.isActive() && copies_.is_behind())
        timer_.start();
}

void CopyTimer::write() {
    try {
        copies_.update();
        last_reason_.clear();
    } catch (const std::exception& error) {
        const QString reason = base::message_text(
            session_.language.text(Text::recovery_copy_failed, {session_.language.text(error)}));
        if (std::exchange(last_reason_, reason) != reason)
            emit failed(reason);
    }
}

} // namespace shell
