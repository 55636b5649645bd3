#include "editor/option_group.h"

#include "data/text.h"

#include <QKeyEvent>

#include <utility>

namespace editor {

OptionButton::OptionButton(const QString& caption, QWidget* parent)
    : QRadioButton(caption, parent) {
    setAutoExclusive(false);
}

QList<OptionButton*> OptionButton::group() const {
    return parentWidget()->findChildren<OptionButton*>(QString(), Qt::FindDirectChildrenOnly);
}

void OptionButton::take_tab_stop() {
    for (OptionButton* option : group())
        option->setFocusPolicy(option == this ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionButton::focusInEvent(QFocusEvent* event) {
    take_tab_stop();
    QRadioButton::focusInEvent(event);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    const bool forth = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
    const bool back = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
    if (!forth && !back) {
        QRadioButton::keyPressEvent(event);
        return;
    }
    const auto options = group();
    const auto next = options.indexOf(this) + (forth ? 1 : options.size() - 1);
    options[next % options.size()]->setFocus(Qt::TabFocusReason);
}

void OptionGroup::add(OptionButton* option, std::string code,
                      const std::function<void(const std::string& code)>& chosen) {
    options_.push_back({option, std::move(code)});
    const std::size_t index = options_.size() - 1;
    QObject::connect(option, &QAbstractButton::pressed, option, [this, index, chosen] {
        for (const auto& other : options_)
            other.button->setChecked(other.button == options_[index].button);
        chosen(options_[index].code);
    });
}

void OptionGroup::show(std::string_view value) const {
    for (const auto& option : options_) {
        const bool on = !value.empty() && data::equal_ignoring_case(option.code, value);
        option.button->setChecked(on);
        if (on)
            option.button->take_tab_stop();
    }
}

} // namespace editor
