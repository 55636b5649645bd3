#pragma once

#include "editor/fields.h"
#include "map/field_colours.h"
#include "shell/session.h"

#include <QDockWidget>

#include <span>
#include <string>
#include <vector>

class QTreeWidget;

namespace shell {

/// What the colours of the map mean: a list of colours, their values and how many provinces have
/// them. An entry that is clicked, or on which Enter is pressed, selects its provinces.
class Legende : public QDockWidget {
    Q_OBJECT

  public:
    /// The session must outlive the legend.
    Legende(const Session& session, QWidget* owner);

    /// Shows the classes of the field, which is named in the title. For the same field, place and
    /// current entry of the list stay.
    void show_classes(const editor::Field& field, const QString& name,
                      std::span<const map::ColourClass> classes);

  signals:
    /// The provinces of an entry are to be selected.
    void chosen(const std::vector<int>& provinces);
    /// The user has closed the legend.
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void make_current(const map::ColourClass& before);
    std::string text_of(const editor::Field& field, const map::ColourClass& colour_class) const;
    std::string shown_code(const editor::Field& field, const std::string& code) const;

    const Session& session_;
    QTreeWidget* list_;
    std::vector<map::ColourClass> classes_; // by row of the list
};

} // namespace shell
