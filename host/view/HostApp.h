#pragma once
// Everything the host sets up before the first SetupTask: the program's
// folder, the ports (the desktop Ui, the clock, the locale, printers, fonts,
// the colour chooser, the print engine and help), the locale's
// date formats, the session and the main window.

#include <memory>
#include <string>

namespace qv {

class HostSession;
class HostStore;
class HostWindow;
class QtUi;
class ViewFactory;
class SystemClock;
class QtLocaleInfo;
class SurfaceHelpPrinter;
class HostTour;
class PopHelpViewer;
class QtPrinterList;
class QtFontList;
class QtColorChooser;
class QtPrintSurface;

class HostApp {
public:
    HostApp(const std::string& folder, bool interactive);
    ~HostApp();
    HostApp(const HostApp&) = delete;
    HostApp& operator=(const HostApp&) = delete;

    [[nodiscard]] HostWindow& window() const { return *window_; }
    [[nodiscard]] HostSession& session() const { return *session_; }
    [[nodiscard]] HostStore& store() const { return *store_; }
    [[nodiscard]] QtUi& ui() const { return *ui_; }
    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] HostTour& tour() const { return *tour_; }
    [[nodiscard]] PopHelpViewer& help() const { return *help_; }
    [[nodiscard]] QtPrintSurface& printSurface() const { return *print_; }

private:
    std::string folder_;
    std::unique_ptr<ViewFactory> views_;
    std::unique_ptr<QtUi> ui_;
    std::unique_ptr<SystemClock> clock_;
    std::unique_ptr<QtLocaleInfo> locale_;
    std::unique_ptr<SurfaceHelpPrinter> helpPrinter_;
    std::unique_ptr<HostTour> tour_;
    std::unique_ptr<PopHelpViewer> help_;
    std::unique_ptr<QtPrinterList> printers_;
    std::unique_ptr<QtFontList> fonts_;
    std::unique_ptr<QtColorChooser> colors_;
    std::unique_ptr<QtPrintSurface> print_;
    std::unique_ptr<HostStore> store_;
    std::unique_ptr<HostSession> session_;
    std::unique_ptr<HostWindow> window_;
};

}  // namespace qv
