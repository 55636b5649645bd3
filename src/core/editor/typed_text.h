#pragma once

#include "data/columns.h"

#include <string>

namespace editor {

/// A text that was typed into a field which was not left yet, as leaving it would store it.
struct TypedText {
    data::FieldNumber field;
    std::string text;
    friend bool operator==(const TypedText&, const TypedText&) = default;
};

} // namespace editor
