#pragma once

#include "editor/fields.h"
#include "shell/language.h"

#include <span>
#include <string_view>

/// The words of a language file for the codes that provinces hold.
namespace shell {

/// Returns the texts of the field's codes; none for a field whose values are no codes. The entry of
/// a box captions the box, not its values. The language must outlive what is returned.
std::span<const Entry> code_texts(const LanguageTexts& language, const editor::Field& field);

/// Returns the text shown for the code: its entry's, even an empty one, and the code itself where
/// no entry has it. Both arguments must outlive what is returned.
std::string_view text_of_code(std::span<const Entry> entries, std::string_view code);

} // namespace shell
