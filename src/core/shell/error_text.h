#pragma once

#include "data/run_time_error.h"
#include "shell/language.h"

#include <string>

namespace shell {

/// Returns the text of the platform's words for the number.
Text words_of(data::ErrorNumber number);

/// Returns what a box says about the error: its number, its words in the user's language, and its
/// place on the next line.
std::string text_of(const data::RunTimeError& error, const LanguageTexts& language);

} // namespace shell
