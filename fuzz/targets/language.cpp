#include "shell/language.h"

#include "targets.h"

void fuzz::language(std::string_view bytes) {
    shell::LanguageTexts language;
    if (!accepts([&] { language = shell::LanguageTexts(bytes); }))
        return;
    for (const auto& info : shell::value_lists) {
        const auto list = language.list(info.prefix);
        assert(list.size() <= info.capacity);
        for (const auto& entry : list) {
            assert(shell::index_of_code(list, entry.code) >= 0);
            shell::code_of_text(list, info.capacity, entry.text); // the list has one
        }
    }
    for (const auto& entry : language.list("MENU_"))
        assert(language.caption(entry.code) && language.exact_caption(entry.code));
    for (const auto& row : data::texts) {
        const auto& pattern = language.text(row.text);
        assert(pattern.find('%') != std::string::npos || language.text(row.text, {"1"}) == pattern);
    }
}
