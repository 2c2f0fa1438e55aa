#include "reports/PrintSettings.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/PrinterList.h"
#include "values/types/CStringBag.h"
#include "values/types/Convert.h"
#include "values/types/International.h"
#include "values/types/TextCase.h"

namespace qv {

std::string PrintSettings::boolText(bool value) {
    return value ? "True" : "False";
}

bool PrintSettings::boolOf(const std::string& text) {
    if (text.empty()) return false;
    const std::string u = TextCase::upper(text);
    if (u == "TRUE") return true;
    if (u == "FALSE") return false;
    return toDouble(text) != 0.0;
}

namespace {

std::string defaultPrinter() {
    const PrinterList* printers = ports().printers;
    if (!printers) return PrintSettings::kNoPrinter;
    if (std::string name = printers->defaultDevice(); !name.empty()) return name;
    const auto names = printers->deviceNames();
    return names.empty() ? std::string(PrintSettings::kNoPrinter) : names.front();
}

}  // namespace

std::string PrintSettings::defaults(int32_t dialogNum) {
    const bool us = getLocalMeasurement() == 1;
    const char* margin = us ? "1.00" : "2.54";
    const std::string printer = defaultPrinter();
    CStringBag bag;
    for (const auto& [key, value] : {std::pair{"PRINTER", printer.c_str()},
                                     {"PAPER", "Portrait"},
                                     {"COPIES", "1"},
                                     {"PAGESWIDE", "1"},
                                     {"PRINTCOLOR", "Yes"},
                                     {"TOP", margin},
                                     {"BOTTOM", margin},
                                     {"RIGHT", margin},
                                     {"LEFT", margin},
                                     {"HCOLOR", "0"},
                                     {"HFONT", "Arial"},
                                     {"HSIZE", "12"},
                                     {"HEADING", "Quorvel Task Report"},
                                     {"FCOLOR", "0"},
                                     {"FFONT", "Arial"},
                                     {"FSIZE", "8"},
                                     {"FLEFT", kProgramTitle},
                                     {"FRIGHT", "<#>"}})
        bag.WriteItem(key, value);
    for (const char* key : {"PTASK", "PCHECKLIST", "PNOTES"}) bag.WriteItem(key, boolText(true));
    if (dialogNum == kExistingTaskDialog) bag.WriteItem("PSCHEDULE", boolText(true));
    return bag.Contents();
}

}  // namespace qv
