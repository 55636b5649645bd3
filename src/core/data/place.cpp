#include "data/place.h"

#include "data/text.h"

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
    std::string where;
    for (const Phrase& phrase : where_)
        where = phrase.in(dictionary) + (where.empty() ? "" : ", ") + where;
    std::string reason = reason_.in(dictionary);
    return where_.empty() ? reason : Phrase(Text::place_reason, where, reason).in(dictionary);
}

std::string Place::in_english() const {
    return in(english);
}

std::string_view english(Text text) {
    return texts[text].english;
}

} // namespace data
