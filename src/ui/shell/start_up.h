#pragma once

#include "shell/language.h"

#include <string>

namespace shell {

struct Session;

/// The first run of the program is the one that finds no config.txt in its folder.
enum class Run { first, later };

/// Whether the sprite sets that config.txt names are loaded; without a window nobody sees them.
enum class SpriteSets { load, pass_over };

/// Reads config.txt and the language file of the program's folder into the session. Throws a
/// run-time error with file and line for what cannot be read; where config.txt named the file, with
/// the record that does.
Run start_up(Session& session, SpriteSets sprite_sets = SpriteSets::load);

/// Returns the texts of a language file of the program's folder. Throws a run-time error with file
/// and line for what cannot be read.
LanguageTexts read_language_file(const Session& session, const std::string& name);

} // namespace shell
