#include "editor/numeric_entry.h"

#include <QSignalBlocker>

#include <utility>

namespace editor {

NumericEntry::NumericEntry(const NumericField& numeric, EntryField& field, QSlider& slider,
                           Write write)
    : QObject(&field), numeric_(numeric), field_(field), slider_(slider), write_(std::move(write)) {
    connect(&field, &EntryField::entered, this, &NumericEntry::enter);
    connect(&field, &EntryField::left, this, &NumericEntry::leave);
    connect(&field, &QLineEdit::textEdited, this, [this] { is_refused_ = false; });
    connect(&slider, &QSlider::valueChanged, this, [this](int position) {
        field_.show_bytes(slider_text(numeric_, position));
        is_refused_ = false;
        write_(field_.bytes());
    });
}

void NumericEntry::set_slider(int position) {
    const QSignalBlocker blocker(slider_);
    slider_.setValue(position);
}

void NumericEntry::show(const std::string& value) {
    is_refused_ = false;
    field_.show_bytes(value);
    set_slider(slider_position_shown(numeric_, value));
}

bool NumericEntry::store() {
    const auto text = stored_text();
    is_refused_ = !text;
    field_.show_stored(text.value_or(std::string()));
    if (!text)
        return false;
    set_slider(slider_position_entered(numeric_, *text));
    write_(*text);
    return true;
}

void NumericEntry::enter() {
    if (!is_refused_ && !store())
        emit refused();
}

void NumericEntry::leave() {
    if (is_refused_)
        return;
    if (!field_.isModified())
        write_(field_.bytes());
    else if (!store())
        emit refused_when_left();
}

} // namespace editor
