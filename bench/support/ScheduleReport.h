#pragma once
// An Existing-Task-like report for the benchmarks: twelve task rows, a
// checklist, notes and a schedule of any length, with the print settings
// string of the Existing Task's slot.

#include <cstdint>
#include <string>

#include "reports/ReportSource.h"
#include "toolkit/TextEditor.h"

namespace qv::bench {

class ScheduleReport : public ReportSource {
public:
    explicit ScheduleReport(int32_t appointments);

    [[nodiscard]] ReportRows taskRows() override;
    [[nodiscard]] const TextEditor& checklistEditor() const override { return checklist_; }
    [[nodiscard]] const TextEditor& notesEditor() const override { return notes_; }
    [[nodiscard]] bool hasSchedule() const override { return true; }
    [[nodiscard]] std::optional<ReportRows> scheduleRows() override;

    // Puts the session in the Existing Task's slot with a whole string.
    static void useExistingTaskSettings();

private:
    int32_t appointments_;
    TextEditor checklist_{"spellCK"};
    TextEditor notes_{"SpellNotes"};
};

}  // namespace qv::bench
