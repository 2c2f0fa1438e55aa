#include "kit/UserLanguage.h"

#include <clocale>
#include <string>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace qv {

void UserLanguage::fromEnvironment() {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
}

void UserLanguage::useIn(QCoreApplication& app) {
    std::setlocale(LC_NUMERIC, "C");
    // In the C locales gettext ignores LANGUAGE, so Qt's texts stay English too.
    const char* current = std::setlocale(LC_MESSAGES, nullptr);
    const std::string messages = current ? current : "C";
    if (messages == "C" || messages == "POSIX" || messages.rfind("C.", 0) == 0) return;
    // No catalogue for English: the translator stays unloaded and unused.
    auto* qtTexts = new QTranslator(&app);
    if (qtTexts->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qtTexts);
    else
        delete qtTexts;
}

}  // namespace qv
