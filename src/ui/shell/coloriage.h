#pragma once

#include "editor/fields.h"
#include "map/field_colours.h"
#include "shell/session.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QMainWindow;

namespace shell {

class Legende;

/// The field by which the map is coloured, its colours for the present table, and their legend.
class Coloriage : public QObject {
    Q_OBJECT

  public:
    /// The legend stands at the frame's left edge. The session must outlive this.
    Coloriage(const Session& session, QMainWindow& frame);

    /// Colours by the field, whose name the legend shows.
    void colour_by(data::FieldNumber field, const QString& name);
    /// Ends the colouring.
    void end();

    /// Returns the colours; none when the map is not coloured.
    const std::shared_ptr<const map::FieldColours>& colours() const { return colours_; }

    /// Works the colours out again if the table has changed; cheap where it has not.
    void look();

  signals:
    /// There are other colours, or none any more.
    void changed();
    /// The map is not coloured any more.
    void ended();
    /// These provinces were chosen in the legend.
    void chosen(const std::vector<int>& provinces);

  private:
    void work_out();

    const Session& session_;
    Legende* legend_;
    const editor::Field* field_ = nullptr; // none: not coloured
    QString name_;
    std::uint64_t version_ = 0; // of the table when the colours were worked out
    std::shared_ptr<const map::FieldColours> colours_;
};

} // namespace shell
