#pragma once

#include "editor/combined_selection.h"
#include "editor/fields.h"
#include "shell/province_search.h"
#include "shell/table_form.h"

#include <cstdint>
#include <string>
#include <vector>

class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace editor {
class Panneau;
}

namespace shell {

class TypedChoice;

/// Finds provinces by name, city or any field's value while one types, and makes selections of
/// what it found; one works on while it stands.
class Form_recherche : public TableForm {
    Q_OBJECT

  public:
    /// `panel` names the fields.
    Form_recherche(const Session& session, const editor::Panneau& panel, QWidget* owner);

    /// Makes the text ready to be typed over.
    void begin();

    /// The same, for the field's value in the selected provinces, where they have one.
    void begin_with(const editor::Field& field);

  signals:
    /// These provinces are to be selected.
    void selection_wanted(const std::string& selection_text);

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build_entries(const editor::Panneau& panel);
    void build_buttons();

    /// Shows what is found now, and makes the first result the current one.
    void search();
    /// Shows what is found now.
    void refresh();
    void show_count();

    /// Returns the provinces for the buttons: the chosen results when there are several, else all.
    std::vector<int> provinces_meant() const;
    /// Returns whether a key that was pressed in another control is one of the list's.
    bool is_for_list(const QObject* pressed_in, const QKeyEvent& key) const;
    void combine(editor::Combination combination);

    std::vector<SearchTarget> targets_;
    TypedChoice* target_;
    QComboBox* comparison_;
    QLineEdit* text_;
    std::vector<QPushButton*> buttons_for_results_;
    std::vector<FoundProvince> found_; // as shown
    std::uint64_t shown_version_ = 0;  // of the provinces
};

} // namespace shell
