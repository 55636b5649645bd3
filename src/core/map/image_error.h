#pragma once

#include "data/run_time_error.h"

#include <string>
#include <utility>

namespace map {

/// Returns the error for a file that is not the image that was expected.
inline data::RunTimeError image_error(std::string reason) {
    return {data::ErrorNumber::path_file_access, std::move(reason)};
}

} // namespace map
