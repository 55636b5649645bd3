#pragma once

#include "shell/problem.h"

#include <string_view>
#include <vector>

namespace shell {

struct FileCheck {
    std::vector<Problem> problems; // line by line, then what the file lacks
    ProvinceLines lines = {};
};

/// Returns what is wrong with the form of a province file: what reading passes over or takes
/// otherwise than it looks, and what saving does not keep.
FileCheck check_file(std::string_view bytes);

} // namespace shell
