#pragma once

#include "editor/controls.h"
#include "editor/fields.h"
#include "editor/merged_values.h"
#include "editor/option_group.h"
#include "editor/typed_text.h"
#include "shell/session.h"

#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLineEdit;
class QPushButton;

namespace editor {

class EntryField;
class Mark;
class TabPages;

/// The tabbed panel: shows the merged values of the selected provinces, and writes what the user
/// enters into all of them at once.
class Panneau : public QWidget {
    Q_OBJECT

  public:
    Panneau(shell::Session& session, QWidget* parent);

    std::string selection_text() const;
    void set_selection_text(const std::string& text);

    /// Tells the panel that the selection text is the applied one: another one is marked.
    void selection_applied();

    /// Gives the selection text the keyboard focus.
    void focus_selection_text();

    /// Returns the field whose control has the keyboard focus; none without one.
    std::optional<data::FieldNumber> focused_field() const;

    /// Returns what the panel calls the field; empty for one that it does not show.
    const QString& field_name(data::FieldNumber field) const { return bound_[field].name; }

    /// Returns the page of the panel that is open, counted from 0.
    int page() const;
    /// Opens the page; a number that no page has does nothing.
    void show_page(int page);

    /// Shows the selected provinces' values in all controls.
    void show_selection();

    /// Tells the panel that a file was read: what the fields show is not to be written back over
    /// it.
    void forget_shown();

    /// Writes a text that was typed into a field which was not left since.
    void write_typed_text();

    /// Writes it as far as it may stand, without a word.
    void keep_typed_text();

    /// Returns the texts that were typed into fields which were not left since, as leaving would
    /// store them; one that would be refused is none.
    std::vector<TypedText> typed_texts() const;

    /// Returns the width that all controls need, which the panel keeps.
    QSize sizeHint() const override;

  signals:
    void selection_entered();         ///< The selection text is to be applied.
    void told(const QString& notice); ///< What an entry changed.

  private:
    /// Puts a merged value into a field's control.
    using Show = std::function<void(const MergedValue& value)>;

    /// What shows a field.
    struct Bound {
        Show show;
        QString name;
        std::vector<QWidget*> controls; // the frame of a group
        std::vector<Mark*> marks;
    };

    /// A text field and how its typed text is stored.
    struct Entry {
        data::FieldNumber number;
        EntryField* field;
        std::function<void()> store;
        std::function<void()> keep; // the same, without a word about a number out of its range
        std::function<std::optional<std::string>()> stored_text; // nothing when it is refused
    };

    QWidget* build_selection_row();
    QPushButton* build_button(std::string_view name, std::string_view design, QWidget* row);

    // What binds the fields to their controls.
    Show bind(const Field& field);
    Show bind_text(const Field& field);
    Show bind_slider(const Field& field);
    Show bind_group(const Field& field);
    Show bind_list(const Field& field);
    Show bind_box(const Field& field);
    Show bind_label(const Field& field);

    /// Gives a control of the field the mark of differing provinces, and the field its name.
    void adopt(const Field& field, QWidget& control);

    bool anything_selected() const;
    std::vector<int> selected_provinces() const;
    void show_field(const Field& field);
    void show_marks(const Field& field, MergedValue::State state);

    /// Writes what was entered into a field's control; with nothing selected the control is empty
    /// then.
    void write(const std::string& value, const Field& field, bool lost_characters = false);

    /// Shows what the write of a value changed.
    void tell(const Field& field, int provinces, std::string_view value,
              bool lost_characters = false);

    void warn(const NumericField& numeric);

    /// A number that was refused while the focus went elsewhere.
    struct Refusal {
        const NumericField& numeric;
        EntryField& field;
        bool is_in_panel;          // where the focus went
        std::vector<int> selected; // provinces for which it was typed
    };

    /// Warns after the wait, but not before the click that moved the focus is over: a box would
    /// swallow its release. The field gets the focus back if that stayed in the panel and the
    /// selection is the same.
    void warn_after_leaving(const Refusal& refusal, std::chrono::milliseconds wait);

    shell::Session& session_;
    QLineEdit* selection_text_;
    Mark* not_applied_;
    QString applied_text_;
    Controls controls_;
    TabPages* pages_ = nullptr;
    data::FieldArray<Bound> bound_;
    std::vector<std::unique_ptr<OptionGroup>> groups_;
    std::vector<Entry> entries_;
};

} // namespace editor
