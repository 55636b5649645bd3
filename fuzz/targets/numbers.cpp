#include "data/numbers.h"

#include "targets.h"

#include <cmath>

void fuzz::numbers(std::string_view bytes) {
    const double number = data::leading_number(bytes);
    assert(!std::isnan(number));
    assert(data::is_number(bytes) || !data::is_whole_number(bytes));

    const std::string written = data::to_text(number);
    assert(data::is_number(written));
    assert(data::to_text(data::leading_number(written)) == written);
    accepts([&] {
        assert(data::to_int16(number, std::string("place")) == data::round_half_even(number));
    });
}
