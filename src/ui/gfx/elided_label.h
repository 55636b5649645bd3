#pragma once

#include <QLabel>

namespace gfx {

/// A line of text that is painted without its middle where the label is too narrow; the tool tip
/// has the whole.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent);

    void show_text(const QString& text);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace gfx
