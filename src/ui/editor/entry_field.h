#pragma once

#include <QLineEdit>

#include <string>

namespace editor {

/// A text field of the panel that tells when its text is entered or the field is left.
class EntryField : public QLineEdit {
    Q_OBJECT

  public:
    explicit EntryField(QWidget* parent);

    /// Shows the bytes; they come back from `bytes` unchanged while the user types nothing.
    void show_bytes(const std::string& bytes);
    std::string bytes() const;

    /// Tells the field that the table no longer holds what it shows: leaving it untouched is to
    /// write nothing then, until it shows bytes again.
    void forget_shown() { shown_is_current_ = false; }

  signals:
    void entered(); ///< Enter was pressed.
    void left();    ///< The keyboard focus moved to another control or window of the program.

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool shown_is_current_ = true;
};

} // namespace editor
