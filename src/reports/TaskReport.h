#pragma once
// The print flow the three task dialogs share: MakeHTML fills a report
// builder from the print settings string and the dialog's source, DoPrint
// and DoPrintPreview ask, write the report file under "Quorvel Reports/"
// and hand it to the print engine with the footer and the margins. What
// each dialog does differently is its Kind.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "toolkit/PrintSurface.h"

namespace qv {

class Form;
class ReportSource;

class TaskReport {
public:
    struct Kind {
        const char* fileName;
        const char* printQuestion;
        const char* previewQuestion;
        // The Existing Task dialog's DoPrint builds the footer before an
        // older release's title is brought up to date.
        bool printFooterBeforeTitle = false;
    };
    static const Kind kNewTask;
    static const Kind kExistingTask;
    static const Kind kTaskAppointment;

    TaskReport(const Kind& kind, ReportSource& source, const char* module)
        : kind_(kind), source_(source), module_(module) {}

    // The report's HTML; nothing when it failed (the fault is reported).
    [[nodiscard]] std::optional<std::string> MakeHTML();
    void DoPrint();
    void DoPrintPreview();
    // The owner's order: create, PageSetup, show modally, unload, release,
    // SettingUp false. onSaved runs when the user saved (nullptr: the
    // dialog does not listen).
    static void PageSetup(Form& owner, const std::function<void()>& onSaved);

    // The report file's path in the program's folder.
    [[nodiscard]] std::string reportPath() const;
    // Margins in twips: 1440 a unit in US measurement, 567 in metric.
    [[nodiscard]] static int32_t twips(float margin);

private:
    // What MakeHTML keeps for the print step.
    struct Kept {
        float top = 0, bottom = 0, right = 0, left = 0;
        std::string footerFont;
        int32_t footerSize = 0;
        int32_t footerColor = 0;
        std::string footerLeft, footerRight;
    };
    void run(bool preview);
    [[nodiscard]] std::string buildHTML();
    void writeReport(const std::string& html) const;
    [[nodiscard]] PrintJob job(bool preview) const;

    const Kind& kind_;
    ReportSource& source_;
    const char* module_;
    Kept kept_;
};

}  // namespace qv
