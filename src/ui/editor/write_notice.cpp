#include "editor/write_notice.h"

#include "base/captions.h"

#include <QStringList>

namespace editor {

QString write_notice(const shell::LanguageTexts& language, const Written& written) {
    using shell::Text;
    if (written.provinces == 0)
        return {};
    const Text pattern = written.provinces == 1 ? Text::notice_write_one : Text::notice_write;
    QStringList parts = {
        base::own_text(language, pattern, written.field, QString::number(written.provinces))};
    if (written.text.find(';') != std::string_view::npos)
        parts += base::own_text(language, Text::notice_semicolon);
    if (written.lost_characters)
        parts += base::own_text(language, Text::notice_outside_code_page);
    return parts.join(QStringLiteral(". "));
}

} // namespace editor
