#pragma once

#include "data/province_file.h"

#include <string>

namespace shell {

/// Tells on standard error how much of the province file with that stored path was understood, and
/// why nothing was.
void tell_what_was_read(const std::string& path, const data::ReadReport& read);

} // namespace shell
