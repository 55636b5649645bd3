#pragma once

#include "base/elided_label.h"
#include "map/province_places.h"
#include "shell/session.h"

#include <QPointer>

#include <cstdint>
#include <optional>
#include <string>

namespace shell {

/// The part of the status bar that tells how many provinces are selected, whether changes are
/// unsaved, and how many provinces lack the position that the mode places.
class Etat : public base::ElidedLabel {
  public:
    /// The session must outlive the label.
    Etat(const Session& session, QWidget* parent);

    /// Leaves out, for as long as the places exist, the provinces that the map lacks.
    void count_on_map(const map::ProvincePlaces& places) { places_ = &places; }

    /// Returns the size of the words, but at most a third of the status bar; the label insists on
    /// an eighth, and what lies beyond is elided where there is no more room.
    QSize sizeHint() const override { return at_most(3); }
    QSize minimumSizeHint() const override { return at_most(8); }

    /// Looks whether something of this has changed; cheap where nothing has.
    void look();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    struct State {
        std::uint64_t selection_version;
        std::uint64_t provinces_version;
        bool has_unsaved_changes;
        map::Mode mode;
        std::uint64_t places_version; // 0: not known which provinces the map has
        friend bool operator==(const State&, const State&) = default;
    };

    QSize at_most(int part) const;
    QString words() const;
    QString lacking() const;

    const Session& session_;
    QPointer<const map::ProvincePlaces> places_;
    std::string sea_code_;
    std::optional<State> shown_;
};

} // namespace shell
