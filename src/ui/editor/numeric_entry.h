#pragma once

#include "editor/entry_field.h"
#include "editor/fields.h"
#include "shell/session.h"

#include <QSlider>

#include <functional>
#include <string>

namespace editor {

/// A text field whose number has a range, and the slider that stands for it.
class NumericEntry : public QObject {
    Q_OBJECT

  public:
    using Write = std::function<void(const std::string& text)>;

    /// `write` stores a text in the selected provinces.
    NumericEntry(const NumericField& numeric, EntryField& field, QSlider& slider,
                 const shell::Session& session, Write write);

    /// Shows a merged value; the slider never writes for that.
    void show(const std::string& value);

    /// Takes what was typed: stores it, or warns and empties the field when it is out of range.
    void enter();

    /// Takes the text as the field is left. After a warning nothing is stored until the user types.
    void leave();

    /// Stores the text, or empties the field and returns false.
    bool store();

  private:
    void warn();
    void set_slider(int position);

    const NumericField& numeric_;
    EntryField& field_;
    QSlider& slider_;
    const shell::Session& session_;
    Write write_;
    bool refused_ = false;
};

} // namespace editor
