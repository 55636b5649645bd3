#include "editor/option_group.h"

#include "data/text.h"

#include <QKeyEvent>

#include <algorithm>

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
    const bool down = event->key() == Qt::Key_Down;
    const bool up = event->key() == Qt::Key_Up;
    const bool right = event->key() == Qt::Key_Right;
    if (!down && !up && !right && event->key() != Qt::Key_Left) {
        QRadioButton::keyPressEvent(event);
        return;
    }
    auto options = group(); // row by row
    if (down || up)
        std::stable_sort(options.begin(), options.end(),
                         [](const auto* one, const auto* other) { return one->x() < other->x(); });
    const auto next = options.indexOf(this) + (down || right ? 1 : options.size() - 1);
    options[next % options.size()]->setFocus(Qt::TabFocusReason);
}

void OptionGroup::add(OptionButton& option) {
    options_.push_back({&option, {}});
}

void OptionGroup::add(OptionButton& option, const std::string& code,
                      const std::function<void(const std::string& code)>& chosen) {
    options_.push_back({&option, code});
    QObject::connect(&option, &QAbstractButton::pressed, &option, [code, chosen] { chosen(code); });
}

void OptionGroup::show(std::string_view value) const {
    const bool is_used = std::any_of(options_.begin(), options_.end(), [](const Option& option) {
        return option.button->hasFocus();
    });
    if (!is_used)
        make_reachable(); // by its first option, unless one is on
    for (const auto& option : options_) {
        const bool on = !value.empty() && data::equal_ignoring_case(option.code, value);
        option.button->setChecked(on);
        if (on)
            option.button->take_tab_stop();
    }
}

} // namespace editor
