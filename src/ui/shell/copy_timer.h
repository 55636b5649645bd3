#pragma once

#include "shell/recovery_copies.h"

#include <QObject>
#include <QTimer>

namespace shell {

/// Brings the run's recovery copy up to date soon after every change.
class CopyTimer : public QObject {
    Q_OBJECT

  public:
    /// The copies and the session must outlive the timer.
    CopyTimer(RecoveryCopies& copies, const Session& session);

    /// To be called after every event, which may have changed something: that no change is missed
    /// depends on nobody's telling of it.
    void look();

  signals:
    /// The copy could not be written, for another reason than the last time. It is tried again.
    void failed(const QString& reason);

  private:
    void write();

    RecoveryCopies& copies_;
    const Session& session_;
    QTimer timer_;
    QString last_reason_;
};

} // namespace shell
