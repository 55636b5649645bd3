#pragma once

#include <QString>

#include <string_view>

/// Texts that came from outside, as a window can show them: of a sane length whatever a file holds,
/// and with every letter of the paths in them.
namespace base {

/// Returns the text for a message box, the status bar or standard error; of one that is too long
/// the middle is left out.
QString message_text(std::string_view bytes);

/// Returns the text for a caption, an option or an item; of one that is too long the middle is left
/// out.
QString caption_text(std::string_view bytes);

} // namespace base
