#include "view/HostApp.h"

#include "StandardViews.h"
#include "help/PopHelpViewer.h"
#include "help/SurfaceHelpPrinter.h"
#include "kit/QtColorChooser.h"
#include "kit/QtDateTimeFormatter.h"
#include "kit/QtFontList.h"
#include "kit/QtLocaleInfo.h"
#include "kit/QtUi.h"
#include "print/QtPrintSurface.h"
#include "print/QtPrinterList.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/SystemClock.h"
#include "view/HostPalette.h"
#include "view/HostSession.h"
#include "view/HostStore.h"
#include "view/HostTour.h"
#include "view/HostWindow.h"

namespace qv {

HostApp::HostApp(const std::string& folder, bool interactive)
    : folder_(folder),
      views_(std::make_unique<ViewFactory>(StandardViews::make())),
      ui_(std::make_unique<QtUi>(*views_)),
      clock_(std::make_unique<SystemClock>()),
      locale_(std::make_unique<QtLocaleInfo>()),
      helpPrinter_(std::make_unique<SurfaceHelpPrinter>()),
      tour_(std::make_unique<HostTour>(folder)),
      help_(std::make_unique<PopHelpViewer>(helpPrinter_.get(), tour_.get())),
      printers_(std::make_unique<QtPrinterList>()),
      fonts_(std::make_unique<QtFontList>()),
      colors_(std::make_unique<QtColorChooser>()),
      print_(std::make_unique<QtPrintSurface>()),
      store_(std::make_unique<HostStore>(folder)) {
    HostPalette::applyFromEnvironment();
    g().AppPath = folder;
    ports().ui = ui_.get();
    ports().clock = clock_.get();
    ports().locale = locale_.get();
    ports().help = help_.get();
    ports().printers = printers_.get();
    ports().fonts = fonts_.get();
    ports().colorChooser = colors_.get();
    ports().print = print_.get();
    DateTimeFormatter::install(std::make_unique<QtDateTimeFormatter>());
    session_ = std::make_unique<HostSession>(folder, *store_, interactive);
    window_ = std::make_unique<HostWindow>(*store_, *session_);
}

HostApp::~HostApp() {
    window_.reset();
    session_.reset();
    DateTimeFormatter::install(nullptr);
    ports().ui = nullptr;
    ports().clock = nullptr;
    ports().locale = nullptr;
    ports().help = nullptr;
    ports().printers = nullptr;
    ports().fonts = nullptr;
    ports().colorChooser = nullptr;
    ports().print = nullptr;
}

}  // namespace qv
