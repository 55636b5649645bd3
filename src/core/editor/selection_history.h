#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace editor {

/// The selections of a run, the newest last, and a place among them.
class SelectionHistory {
  public:
    /// Puts a selection behind the present one and goes there; later ones are gone. One that
    /// selects the same provinces as the present one is no new one. `text` is what shows it,
    /// `provinces` names its provinces in the one text that all selections of them share.
    void add(std::string text, std::string provinces);

    bool has_earlier() const { return present_ > 0; }
    bool has_later() const { return present_ + 1 < selections_.size(); }

    /// Goes to the selection before or behind the present one and returns its text. There must be
    /// one.
    std::string go_back();
    std::string go_forward();

  private:
    struct Made {
        std::string text;
        std::string provinces;
    };
    std::vector<Made> selections_;
    std::size_t present_ = 0;
};

} // namespace editor
