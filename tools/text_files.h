#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sample {

/// Returns the file's bytes. Throws std::ios_base::failure.
std::string read_file(const std::filesystem::path& path);

/// Gives the file these bytes. Throws std::ios_base::failure.
void write_file(const std::filesystem::path& path, std::string_view bytes);

} // namespace sample
