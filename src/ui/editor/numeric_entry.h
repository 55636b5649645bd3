#pragma once

#include "editor/entry_field.h"
#include "editor/fields.h"

#include <QSlider>

#include <functional>
#include <optional>
#include <string>

namespace editor {

/// A text field whose number has a range, and the slider that stands for it.
class NumericEntry : public QObject {
    Q_OBJECT

  public:
    using Write = std::function<void(const std::string& text)>;

    /// `write` stores a text in the selected provinces.
    NumericEntry(const NumericField& numeric, EntryField& field, QSlider& slider, Write write);

    /// Shows a merged value; the slider never writes for that.
    void show(const std::string& value);

    /// Takes what was typed as Enter does: stores it, or refuses it. After that nothing is stored
    /// until the user types.
    void enter();

    /// Stores the text; empties the field and returns false when it is out of range.
    bool store();

    /// Returns what the text is stored as; nothing when it is out of range.
    std::optional<std::string> stored_text() const {
        return checked_entry(numeric_, field_.bytes());
    }

  signals:
    void refused();           ///< What was entered is out of range.
    void refused_when_left(); ///< The same; the focus is on its way to another control.

  private:
    void leave();
    void set_slider(int position);

    const NumericField& numeric_;
    EntryField& field_;
    QSlider& slider_;
    Write write_;
    bool is_refused_ = false;
};

} // namespace editor
