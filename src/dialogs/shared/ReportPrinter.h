#pragma once
// A task dialog's print commands over the shared report flow: its report
// kind, its source of rows and, for the one dialog that tells the host of
// a changed print string, what runs when Page Setup saved.

#include <functional>
#include <memory>

#include "dialogs/shared/TaskPrinter.h"
#include "reports/ReportSource.h"
#include "reports/TaskReport.h"

namespace qv {

class Form;

class ReportPrinter : public TaskPrinter {
public:
    ReportPrinter(Form& owner, const TaskReport::Kind& kind, std::unique_ptr<ReportSource> source,
                  const char* module, std::function<void()> onPageSetupSaved = {});

    void DoPrint() override { report_.DoPrint(); }
    void DoPrintPreview() override { report_.DoPrintPreview(); }
    void PageSetup() override { TaskReport::PageSetup(owner_, onSaved_); }
    [[nodiscard]] TaskReport& report() { return report_; }

private:
    Form& owner_;
    std::unique_ptr<ReportSource> source_;
    TaskReport report_;
    std::function<void()> onSaved_;
};

}  // namespace qv
