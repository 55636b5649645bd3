#pragma once

#include <QLabel>

namespace shell {

/// A line of text that never asks for more room than there is: what does not fit ends in dots, and
/// the tool tip tells it whole.
class ElidedLabel : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent);

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString fitting_text() const;
};

} // namespace shell
