#pragma once

#include <QLabel>

namespace base {

/// A line of text that never asks for more room than there is: dots stand for what does not fit,
/// and the tool tip tells it whole.
class ElidedLabel : public QLabel {
  public:
    /// `dots` says where they stand.
    explicit ElidedLabel(QWidget* parent, Qt::TextElideMode dots = Qt::ElideRight);

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString fitting_text() const;

    Qt::TextElideMode dots_;
};

} // namespace base
