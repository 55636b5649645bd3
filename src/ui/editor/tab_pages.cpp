#include "editor/tab_pages.h"

#include "base/captions.h"
#include "editor/entry_field.h"
#include "editor/panel_builder.h"
#include "editor/panel_layout.h"

#include <QFocusEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace editor {

TabPages::TabPages(const shell::LanguageTexts& language, Controls& controls, QWidget* parent)
    : QWidget(parent), strip_(new QTabBar(this)), stack_(new QStackedWidget(this)) {
    strip_->setObjectName(QStringLiteral("TabStrip1"));
    strip_->setExpanding(false);
    strip_->installEventFilter(this);
    for (const auto& tab : tabs) {
        strip_->addTab(base::frame_caption(language, tab.caption_key, tab.title));
        auto* page = new QScrollArea(stack_);
        page->setFrameShape(QFrame::NoFrame);
        page->setFocusPolicy(Qt::NoFocus);
        page->setWidgetResizable(true);
        page->setWidget(build_tab(tab, language, controls, page));
        stack_->addWidget(page);
        pages_ += page;
    }
    for (const auto& [name, control] : controls)
        control->installEventFilter(this);
    // The focus leaves the old tab's field before that hides, and enters none of the new one's.
    connect(strip_, &QTabBar::currentChanged, this, [this](int index) {
        strip_->setFocus(Qt::OtherFocusReason);
        stack_->setCurrentIndex(index);
    });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(strip_);
    column->addWidget(stack_);
}

void TabPages::fit_to_captions() {
    align(*this);
    fit_width(std::numeric_limits<int>::max());
}

int TabPages::page() const {
    return stack_->currentIndex();
}

void TabPages::show_page(int page) {
    strip_->setCurrentIndex(page);
}

int TabPages::page_of(const QWidget& control) const {
    const auto found = std::find_if(pages_.begin(), pages_.end(), [&](const QScrollArea* page) {
        return page->isAncestorOf(&control);
    });
    return static_cast<int>(found - pages_.begin());
}

void TabPages::return_to(QWidget& control) {
    strip_->setCurrentIndex(page_of(control));
    control.setFocus(focus_sent_back);
}

bool TabPages::eventFilter(QObject* watched, QEvent* event) {
    auto& control = *static_cast<QWidget*>(watched);
    if (&control == strip_) {
        // The strip answers its shortcuts only when they change the page.
        if (event->type() == QEvent::Shortcut)
            strip_->setFocus(Qt::ShortcutFocusReason);
    } else if (event->type() == QEvent::Wheel) {
        // The wheel scrolls; the value that happens to lie under it stays.
        event->ignore();
        return true;
    } else if (event->type() == QEvent::FocusIn &&
               static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason) {
        pages_[page_of(control)]->ensureWidgetVisible(&control);
    }
    return QWidget::eventFilter(watched, event);
}

void TabPages::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fit_width(stack_->height());
}

/// Makes the pages as wide as their controls need, and a scroll bar where the height needs one.
void TabPages::fit_width(int height) {
    QSize needed;
    for (const QScrollArea* page : pages_)
        needed = needed.expandedTo(page->widget()->minimumSizeHint());
    const int bar =
        needed.height() > height ? pages_.first()->verticalScrollBar()->sizeHint().width() : 0;
    stack_->setMinimumWidth(needed.width() + bar);
}

} // namespace editor
