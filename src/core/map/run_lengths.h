#pragma once

#include <span>

namespace map {

/// Throws path/file access error for a bitmap with run-length pixels whose bytes (the whole file)
/// end before its last row does: a picture of it would show the missing rows in any colour. Does
/// nothing for every other file.
void check_run_lengths(std::span<const char> file);

} // namespace map
