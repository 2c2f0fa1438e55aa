#include "script/ScriptPrinting.h"

#include <QApplication>

#include "kit/QtFontList.h"
#include "kit/UserLanguage.h"
#include "print/QtPrintSurface.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {
int argc = 1;
char name[] = "quorvel-script";
char* argv[] = {name, nullptr};
}  // namespace

ScriptPrinting::ScriptPrinting()
    : surface_(std::make_unique<QtPrintSurface>(QtPrintSurface::Options{false, true, false})),
      fonts_(std::make_unique<QtFontList>()) {
    if (!QApplication::instance()) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        app_ = std::make_unique<QApplication>(argc, argv);
        UserLanguage::useIn(*app_);
    }
    ports().print = surface_.get();
    ports().fonts = fonts_.get();
}

ScriptPrinting::~ScriptPrinting() {
    if (ports().print == surface_.get()) ports().print = nullptr;
    if (ports().fonts == fonts_.get()) ports().fonts = nullptr;
}

}  // namespace qv
