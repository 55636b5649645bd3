#include "editor/differing_tip.h"

#include "base/captions.h"
#include "editor/differing_values.h"

#include <QStringList>

namespace editor {

namespace {

using shell::Text;

/// Boxes have an entry that captions them, not their values.
bool has_captioned_values(const Field& field) {
    return field.display == Display::group || field.display == Display::treaty ||
           field.display == Display::list;
}

std::string value_caption(const shell::LanguageTexts& language, const Field& field,
                          const std::string& value) {
    if (has_captioned_values(field)) {
        const auto entries = language.list(field.list_prefix);
        if (const int index = shell::index_of_code(entries, value); index >= 0)
            return entries[static_cast<std::size_t>(index)].text;
    }
    return value.empty() ? language.text(Text::empty_value) : value;
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
