#pragma once
// Where the logic finds its ports. The host (or a test fixture) installs
// them before the first SetupTask; the logic never creates one itself.

#include <functional>
#include <string>

#include "Export.h"

namespace qv {

class Ui;
class Clock;
class Reporter;
class ColorChooser;
class HelpViewer;
class PrintSurface;
class SpellChecker;
class LocaleInfo;
class PrinterList;
class FontList;

struct QV_EXPORT Ports {
    Ui* ui = nullptr;
    Clock* clock = nullptr;
    Reporter* reporter = nullptr;  // the default reporter of the error path
    ColorChooser* colorChooser = nullptr;
    HelpViewer* help = nullptr;
    PrintSurface* print = nullptr;
    SpellChecker* spell = nullptr;
    LocaleInfo* locale = nullptr;
    PrinterList* printers = nullptr;  // none installed: no printers
    FontList* fonts = nullptr;        // none installed: no fonts
};

QV_EXPORT Ports& ports();

// Shorthands that fail loudly when a port is missing.
QV_EXPORT Ui& ui();
QV_EXPORT Clock& clock();

}  // namespace qv
