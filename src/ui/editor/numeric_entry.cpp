#include "editor/numeric_entry.h"

#include "base/messages.h"

#include <QSignalBlocker>

#include <utility>

namespace editor {

NumericEntry::NumericEntry(const NumericField& numeric, EntryField& field, QSlider& slider,
                           const shell::Session& session, Write write)
    : QObject(&field),
      numeric_(numeric),
      field_(field),
      slider_(slider),
      session_(session),
      write_(std::move(write)) {
    connect(&field, &EntryField::entered, this, &NumericEntry::enter);
    connect(&field, &EntryField::left, this, &NumericEntry::leave);
    connect(&field, &QLineEdit::textEdited, this, [this] { refused_ = false; });
    connect(&slider, &QSlider::valueChanged, this, [this](int position) {
        field_.show_bytes(slider_text(numeric_, position));
        refused_ = false;
        write_(field_.bytes());
    });
}

void NumericEntry::set_slider(int position) {
    const QSignalBlocker blocker(slider_);
    slider_.setValue(position);
}

void NumericEntry::show(const std::string& value) {
    refused_ = false;
    field_.show_bytes(value);
    set_slider(slider_position_shown(numeric_, value));
}

bool NumericEntry::store() {
    const auto text = checked_entry(numeric_, field_.bytes());
    refused_ = !text;
    field_.show_bytes(text.value_or(std::string()));
    if (!text)
        return false;
    set_slider(slider_position_entered(numeric_, *text));
    write_(*text);
    return true;
}

void NumericEntry::warn() {
    base::show_message(session_, field_.window(), session_.language.message(numeric_.message));
}

void NumericEntry::enter() {
    if (!store())
        warn();
}

void NumericEntry::leave() {
    if (refused_)
        return;
    // A box that opens while the focus is on its way would swallow the click that moves it.
    if (!field_.isModified())
        write_(field_.bytes());
    else if (!store())
        QMetaObject::invokeMethod(this, &NumericEntry::warn, Qt::QueuedConnection);
}

} // namespace editor
