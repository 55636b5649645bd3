#include "editor/selection_history.h"

#include <utility>

namespace editor {

namespace {

constexpr std::size_t most_selections = 200;

} // namespace

void SelectionHistory::add(std::string text, std::string provinces) {
    if (!selections_.empty()) {
        if (selections_[present_].provinces == provinces)
            return;
        selections_.resize(present_ + 1);
    }
    if (selections_.size() == most_selections)
        selections_.erase(selections_.begin());
    selections_.push_back({std::move(text), std::move(provinces)});
    present_ = selections_.size() - 1;
}

std::string SelectionHistory::go_back() {
    return selections_.at(--present_).text;
}

std::string SelectionHistory::go_forward() {
    return selections_.at(++present_).text;
}

} // namespace editor
