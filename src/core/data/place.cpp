#include "data/place.h"

#include <utility>

namespace data {

std::string Phrase::in(const Dictionary& dictionary) const {
    if (!text_)
        return values_.front();
    const std::vector<std::string_view> values(values_.begin(), values_.end());
    return filled(dictionary(*text_), values);
}

Place Place::within(Phrase outer) const {
    Place place = *this;
    place.where_.push_back(std::move(outer));
    return place;
}

std::string Place::in(const Dictionary& dictionary) const {
    const std::string reason = reason_.in(dictionary);
    if (where_.empty())
        return reason;
    std::string where;
    for (auto phrase = where_.rbegin(); phrase != where_.rend(); ++phrase)
        where += (where.empty() ? "" : ", ") + phrase->in(dictionary);
    return Phrase(Text::place_reason, where, reason).in(dictionary);
}

std::string Place::in_english() const {
    return in(english);
}

std::string_view english(Text text) {
    return texts[text].english;
}

} // namespace data
