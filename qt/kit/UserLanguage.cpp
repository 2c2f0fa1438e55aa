#include "kit/UserLanguage.h"

#include <clocale>

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
    // No catalogue for English or C: the translator stays unloaded and unused.
    auto* qtTexts = new QTranslator(&app);
    if (qtTexts->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qtTexts);
    else
        delete qtTexts;
}

}  // namespace qv
