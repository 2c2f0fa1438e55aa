#pragma once
// The desktop print engine for the scenario driver: an offscreen Qt
// application, the font list, and reports always printed into a PDF beside
// the report file (a preview makes the PDF without a window), so a script
// can count its pages. No printer is installed for a script.

#include <memory>

class QApplication;

namespace qv {

class QtPrintSurface;
class QtFontList;

class ScriptPrinting {
public:
    ScriptPrinting();
    ~ScriptPrinting();
    ScriptPrinting(const ScriptPrinting&) = delete;
    ScriptPrinting& operator=(const ScriptPrinting&) = delete;

private:
    std::unique_ptr<QApplication> app_;
    std::unique_ptr<QtPrintSurface> surface_;
    std::unique_ptr<QtFontList> fonts_;
};

}  // namespace qv
