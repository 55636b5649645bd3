#pragma once

#include "editor/one_line_edit.h"

#include <string>

namespace editor {

/// A text field of the panel that tells when its text is entered or the field is left.
class EntryField : public OneLineEdit {
    Q_OBJECT

  public:
    explicit EntryField(QWidget* parent);

    /// Shows the bytes from their beginning; they come back from `bytes` unchanged while the user
    /// types nothing.
    void show_bytes(const std::string& bytes);

    /// Shows the bytes that became of the user's entry; the cursor stays where it is.
    void show_stored(const std::string& bytes);

    std::string bytes() const;

    /// Returns whether the entry that is shown had characters that were stored as "?".
    bool lost_characters() const { return lost_characters_; }

    /// Tells the field that the table no longer holds what it shows: leaving it untouched is to
    /// write nothing then, until it shows bytes again.
    void forget_shown() { shown_is_current_ = false; }

  signals:
    void entered(); ///< Enter was pressed.
    void left();    ///< The keyboard focus moved to another control of the same window.

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool shown_is_current_ = true;
    bool lost_characters_ = false;
};

/// The reason for a focus that the program moves, not the user: no field counts that as being left.
inline constexpr auto focus_sent_back = Qt::PopupFocusReason;

} // namespace editor
