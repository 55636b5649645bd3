#include "shell/problem.h"

#include <algorithm>
#include <utility>

namespace shell {

std::string text_of(const Problem& problem, const LanguageTexts& language) {
    std::string what = language.text(problem.what, {problem.value, problem.detail});
    if (problem.is_hint)
        what = language.text(Text::place_reason, {language.text(Text::controle_hint), what});
    return what;
}

std::string shown_column(data::FileColumn column) {
    const auto number = std::to_string(column.number);
    const std::string header(data::header(column));
    return header.empty() ? number : number + " (" + header + ")";
}

std::string on_one_line(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' '; }, ' ');
    return text;
}

std::string printed_line(const Problem& problem, std::string_view file,
                         const LanguageTexts& language) {
    std::string text(file);
    if (problem.line > 0)
        text += ":" + std::to_string(problem.line);
    text += ": ";
    if (problem.province > 0)
        text += "province " + std::to_string(problem.province);
    if (problem.province > 0 && problem.column)
        text += ", ";
    if (problem.column)
        text += shown_column(*problem.column);
    if (problem.province > 0 || problem.column)
        text += ": ";
    return on_one_line(text + text_of(problem, language));
}

} // namespace shell
