#include "editor/mark.h"

#include <QComboBox>
#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace editor {

namespace {

constexpr auto placeholder = "placeholderText"; // property of text fields and lists
// Of 255.
constexpr int tint_opacity = 40;
constexpr int placeholder_opacity = 170;

/// Returns the plain text, whatever it looks like, as the text of a tool tip.
QString as_tool_tip(const QString& text) {
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
}

/// Gives the control's placeholder a colour: not every dark palette has one that can be read.
void make_placeholder_readable(QWidget& control) {
    QColor colour = control.palette().color(QPalette::Text);
    colour.setAlpha(placeholder_opacity);
    if (control.palette().color(QPalette::PlaceholderText) == colour)
        return;
    QPalette readable;
    readable.setColor(QPalette::PlaceholderText, colour);
    control.setPalette(readable);
}

void set_placeholder(QWidget& control, const QString& words) {
    auto* list = qobject_cast<QComboBox*>(&control);
    const int chosen = list != nullptr ? list->currentIndex() : -1;
    control.setProperty(placeholder, words);
    if (list != nullptr)
        list->setCurrentIndex(chosen); // without a placeholder it would choose its first entry
}

} // namespace

Mark::Mark(QWidget& control, QString words, std::function<QString()> tip)
    : QWidget(&control), control_(control), words_(std::move(words)), tip_(std::move(tip)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    control.installEventFilter(this);
}

void Mark::set_shown(bool shown) {
    setVisible(shown);
    const QString words = shown ? words_ : QString();
    control_.setAccessibleDescription(words);
    if (control_.metaObject()->indexOfProperty(placeholder) >= 0) {
        make_placeholder_readable(control_);
        set_placeholder(control_, words);
    }
    if (!shown)
        return;
    resize(control_.size());
    raise();
}

bool Mark::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        resize(control_.size());
    } else if (event->type() == QEvent::PaletteChange) {
        make_placeholder_readable(control_); // the desktop may turn dark meanwhile
    } else if (event->type() == QEvent::ToolTip && !isHidden()) {
        QString text = tip_();
        if (const QString lasting = control_.toolTip(); !lasting.isEmpty())
            text += '\n' + lasting;
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), as_tool_tip(text),
                           &control_);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void Mark::paintEvent(QPaintEvent*) {
    QColor tint = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setPen(QPen(tint, 1, Qt::DashLine));
    tint.setAlpha(tint_opacity);
    painter.setBrush(tint);
    painter.drawRect(rect().adjusted(1, 1, -2, -2)); // beside the frame that shows the focus
}

} // namespace editor
