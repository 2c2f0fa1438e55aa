#pragma once
// Where a task dialog hands its print commands: print, preview and page
// setup. This base does nothing; ReportPrinter is the real one.

namespace qv {

class TaskPrinter {
public:
    virtual ~TaskPrinter() = default;
    virtual void DoPrint() {}
    virtual void DoPrintPreview() {}
    virtual void PageSetup() {}
};

}  // namespace qv
