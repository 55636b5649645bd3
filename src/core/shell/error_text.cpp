#include "shell/error_text.h"

namespace shell {

Text words_of(data::ErrorNumber number) {
    using data::ErrorNumber;
    switch (number) {
    case ErrorNumber::invalid_procedure_call:
        return Text::error_invalid_procedure_call;
    case ErrorNumber::overflow:
        return Text::error_overflow;
    case ErrorNumber::subscript_out_of_range:
        return Text::error_subscript_out_of_range;
    case ErrorNumber::file_not_found:
        return Text::error_file_not_found;
    case ErrorNumber::disk_full:
        return Text::error_disk_full;
    case ErrorNumber::input_past_end:
        return Text::error_input_past_end;
    case ErrorNumber::permission_denied:
        return Text::error_permission_denied;
    case ErrorNumber::path_file_access:
        return Text::error_path_file_access;
    case ErrorNumber::path_not_found:
        return Text::error_path_not_found;
    }
    return Text::error_unknown;
}

std::string text_of(const data::RunTimeError& error, const LanguageTexts& language) {
    const std::string number = std::to_string(static_cast<int>(error.number()));
    std::string text =
        language.text(Text::error_heading, {number, language.text(words_of(error.number()))});
    if (!error.place().empty())
        text.append("\n").append(error.place());
    return text;
}

} // namespace shell
