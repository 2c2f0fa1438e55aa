#pragma once
// Where a task dialog hands its print commands. The report flow plugs in
// here; until then the commands do nothing.

namespace qv {

class TaskPrinter {
public:
    virtual ~TaskPrinter() = default;
    virtual void DoPrint() {}
    virtual void DoPrintPreview() {}
    virtual void PageSetup() {}
};

}  // namespace qv
