#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace editor {

/// A tint and a dashed frame over a control whose content is not to be taken for granted, with
/// words for those who see neither: a description, and the placeholder of an empty field or list.
/// While it is shown the control's tool tip begins with its own.
class Mark : public QWidget {
  public:
    /// `tip` returns the plain text of the tool tip; it is asked only when the tip is to be shown.
    Mark(QWidget& control, QString words, std::function<QString()> tip);

    void set_shown(bool shown);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget& control_;
    QString words_;
    std::function<QString()> tip_;
};

} // namespace editor
