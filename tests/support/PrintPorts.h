#pragma once
// Fixed printers, fonts, locale and colour chooser, and a print surface
// that records what it was asked: the ports of the report tests.

#include <string>
#include <vector>

#include "toolkit/ColorChooser.h"
#include "toolkit/FontList.h"
#include "toolkit/LocaleInfo.h"
#include "toolkit/PrintSurface.h"
#include "toolkit/PrinterList.h"

namespace qv {

struct FixedPrinters : PrinterList {
    std::vector<std::string> names;
    std::string defaultName;
    [[nodiscard]] std::vector<std::string> deviceNames() const override { return names; }
    [[nodiscard]] std::string defaultDevice() const override { return defaultName; }
};

struct FixedFonts : FontList {
    [[nodiscard]] std::vector<std::string> fontNames() const override {
        return {"Arial", "Tahoma", "Verdana"};
    }
};

struct FixedLocale : LocaleInfo {
    int32_t system = 0;
    [[nodiscard]] int32_t measurementSystem() const override { return system; }
};

struct FixedColorChooser : ColorChooser {
    int32_t answer = -1;  // -1: the user cancels
    int32_t lastInitial = -2;
    std::string lastTitle;
    bool choose(int32_t initial, const std::string& title, bool, int32_t& chosen) override {
        lastInitial = initial;
        lastTitle = title;
        chosen = answer;
        return answer >= 0;
    }
};

struct RecordingSurface : PrintSurface {
    std::vector<PrintJob> printed, previewed;
    void print(const PrintJob& job) override { printed.push_back(job); }
    void preview(const PrintJob& job) override { previewed.push_back(job); }
};

}  // namespace qv
