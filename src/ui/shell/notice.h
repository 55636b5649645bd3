#pragma once

#include "base/elided_label.h"

#include <QTimer>

namespace shell {

/// The part of the status bar that tells of what just happened, for a while. Of a long notice both
/// ends are seen: the first words say what it is about, the last ones are a reason or a file's
/// name.
class Notice : public base::ElidedLabel {
  public:
    explicit Notice(QWidget* parent);

    /// Shows the text for 15 seconds, in the place of the one before.
    void tell(const QString& text);

    /// Shows the text whenever nothing else is told, until another one is kept.
    void keep(const QString& text);

  private:
    QString kept_;
    QTimer time_{this};
};

} // namespace shell
