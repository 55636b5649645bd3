#pragma once

#include "data/run_time_error.h"

namespace map {

/// Returns the error for a file that is not the image that was expected: the reason and its values.
template <typename... Values>
data::RunTimeError image_error(data::Text reason, const Values&... values) {
    return {data::ErrorNumber::path_file_access, data::Phrase(reason, values...)};
}

} // namespace map
