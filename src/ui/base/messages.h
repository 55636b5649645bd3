#pragma once

#include "data/run_time_error.h"
#include "shell/session.h"

#include <string>

class QWidget;

/// The program's message boxes. In a run that nobody attends they throw what they would have said.
namespace base {

/// Shows the text with an exclamation mark and an OK button.
void show_message(const shell::Session& session, QWidget* owner, const std::string& text);

/// Says that config.txt could not hold what was chosen, and that nothing has changed.
void show_unstorable(const shell::Session& session, QWidget* owner);

enum class DefaultAnswer { yes, no };

/// What Escape and the close box answer to a question: No, or nothing, so that the box stays.
enum class EscapeKey { is_no, stays };

/// Returns whether the question was answered with Yes.
bool ask(const shell::Session& session, QWidget* owner, const std::string& text,
         DefaultAnswer preset, EscapeKey escape = EscapeKey::is_no);

/// Shows an error that ends one operation only; the program goes on.
void show_error(const shell::Session& session, QWidget* owner, const data::RunTimeError& error);

/// Shows the text of an error that ends the program.
void show_error_box(QWidget* owner, const std::string& text);

} // namespace base
