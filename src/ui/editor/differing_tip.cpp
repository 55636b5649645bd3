#include "editor/differing_tip.h"

#include "base/captions.h"
#include "editor/differing_values.h"
#include "shell/code_texts.h"

#include <QStringList>

namespace editor {

namespace {

using shell::Text;

std::string value_caption(const shell::LanguageTexts& language, const Field& field,
                          const std::string& value) {
    const std::string_view text = shell::text_of_code(shell::code_texts(language, field), value);
    return std::string(value.empty() && text.empty() ? language.text(Text::empty_value) : text);
}

} // namespace

QString differing_tip(const shell::Session& session, const Field& field) {
    const auto& language = session.language;
    const auto values = differing_values(session.provinces, session.selection, field);
    QStringList told = {QString()}; // each value on a line of its own
    for (const auto& [text, provinces] : values.most_frequent) {
        const QString caption = base::caption_text(value_caption(language, field, text));
        const Text pattern = provinces == 1 ? Text::differing_value_one : Text::differing_value;
        told += base::own_text(language, pattern, caption, QString::number(provinces));
    }
    return base::own_text(language, Text::differing_tip, QString::number(values.count),
                          told.join('\n'));
}

} // namespace editor
