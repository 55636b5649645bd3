#pragma once

#include "data/province_table.h"
#include "positions.h"
#include "shell/language.h"
#include "world.h"

#include <span>

namespace sample {

/// Returns the table of all provinces: values that go with the world, its positions, and every code
/// of the language texts at one province at least.
data::ProvinceTable make_values(const World& world, std::span<const Positions> positions,
                                const shell::LanguageTexts& language);

} // namespace sample
