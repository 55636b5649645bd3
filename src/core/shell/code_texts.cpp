#include "shell/code_texts.h"

namespace shell {

std::span<const Entry> code_texts(const LanguageTexts& language, const editor::Field& field) {
    using editor::Display;
    const bool has_codes = field.display == Display::group || field.display == Display::treaty ||
                           field.display == Display::list;
    return has_codes ? language.list(field.list_prefix) : std::span<const Entry>();
}

std::string_view text_of_code(std::span<const Entry> entries, std::string_view code) {
    const int index = index_of_code(entries, code);
    return index < 0 ? code : entries[static_cast<std::size_t>(index)].text;
}

} // namespace shell
