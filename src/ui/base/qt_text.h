#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The border between the program's Windows-1252 bytes and Qt's texts. All 256 bytes survive the
/// way there and back.
namespace base {

/// Returns the text of the bytes.
QString to_qstring(std::string_view bytes);

/// Returns the bytes of the text, letters and their accents composed, "?" for a character outside
/// the code page.
std::string to_bytes(const QString& text);

/// Returns whether the code page has all characters of the text, letters and their accents
/// composed.
bool page_holds(const QString& text);

/// Returns the text of a literal in UTF-8, the encoding of the sources.
QString from_utf8(std::string_view literal);

} // namespace base
