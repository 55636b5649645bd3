#include "shell/qt_texts.h"

#include "base/captions.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace shell {

void install_qt_texts(const LanguageTexts& language) {
    auto translator = std::make_unique<QTranslator>();
    const QString file = QStringLiteral("qtbase_") + base::own_text(language, Text::locale);
    if (!translator->load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.release());
}

} // namespace shell
