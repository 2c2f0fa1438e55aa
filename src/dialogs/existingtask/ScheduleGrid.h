#pragma once
// The schedule of an existing task: the grid gridSked bound to the task's
// Task Appointments through clsTaskSchedule, newest first, with its two
// strips smtSkedBtns (add, delete) and smtSkedTimes. A row shows its start
// and end as times (the dates while a cell is edited), the planned
// duration, a ">>" button that makes the planned duration the time spent,
// and the time spent, kept in minutes. Edits reach the store as each cell
// is committed, whatever the dialog does afterwards.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/Recordset.h"
#include "toolkit/Grid.h"

namespace qv {

class Sheet;
class Tool;
class clsTaskSchedule;
struct TaskRecord;

class ScheduleGrid {
public:
    struct Hooks {
        std::function<const TaskRecord&()> record;  // the dialog's packed task
        std::function<void()> ValidateTask;
        // SkedRowCount changed (the dialog keeps its own copy).
        std::function<void(int32_t)> countChanged;
        // A failure in a grid handler goes down the dialog's error path.
        std::function<void(const char* procedure, const std::function<void()>& body)> trapped;
    };

    // smtABOUT holds "PROJECT" and "SCHEDULED"; smtTimes holds "TIMESPENT".
    ScheduleGrid(Sheet& smtABOUT, Sheet& smtSkedTimes, Sheet& smtTimes, Hooks hooks);
    ~ScheduleGrid();
    ScheduleGrid(const ScheduleGrid&) = delete;
    ScheduleGrid& operator=(const ScheduleGrid&) = delete;

    [[nodiscard]] Grid& gridSked() { return grid_; }
    [[nodiscard]] int32_t SkedRowCount() const { return skedRowCount_; }

    // A fresh source for the task in CurrentTaskGUID, bound and shown.
    void initSked();
    // Sums the planned durations into "SCHEDULED"; at load only.
    void CountUpSked();
    // Detaches and releases the source.
    void killSked();

    void smtSkedBtns_Click(Tool& tool);
    void smtSkedTimes_Click(Tool& tool);

    // Column widths as factors of the grid's width: at layout, and as the
    // schedule panel's resize sets them (they differ for Start, End and ">>").
    void applyLayoutWidths();
    void applyResizeWidths();
    // Whether the widths of layout still wait for the grid's first width.
    [[nodiscard]] bool layoutPending() const { return !laidOut_; }

private:
    void InitializeLayout();
    void InitializeRow(int32_t row);
    [[nodiscard]] static std::string durationText(std::optional<double> start, std::optional<double> end);
    void fillUnbound(std::vector<std::string>& cells, std::optional<double> start, std::optional<double> end,
                     std::optional<double> minutes) const;
    void loadRows();
    void fetchRow(int32_t row);
    void fetchAll();
    [[nodiscard]] std::vector<std::string> makeRow(int32_t row);
    // A row's "Duration", read without making the row's other cells.
    [[nodiscard]] const std::string& plannedText(int32_t row) const;
    void BeforeCellUpdate(int32_t row, int32_t column, const std::string& text, bool& cancel);
    void AfterCellUpdate(int32_t row, int32_t column);
    void ClickCellButton(int32_t row, int32_t column);
    [[nodiscard]] std::string AfterGetValue(int32_t column, const std::string& value) const;
    void writeField(int32_t row, int32_t column);
    [[nodiscard]] int32_t col(const char* key) const;
    void addAppointment();
    void deleteAppointment();
    void trapped(const char* procedure, const std::function<void()>& body);
    void setCount(int32_t count);

    Sheet& smtABOUT_;
    Sheet& smtSkedTimes_;
    Sheet& smtTimes_;
    Hooks hooks_;
    Grid grid_{"gridSked"};
    std::unique_ptr<clsTaskSchedule> source_;
    RecordsetPtr rs_;
    int32_t skedRowCount_ = 0;
    int32_t boundColumns_ = 0;
    // The columns the dialog adds after the query's, found once per layout
    // rather than by name for every row.
    struct Unbound {
        int32_t calc = -1, button = -1, fake = -1;
    } unbound_;
    bool laidOut_ = false;
    // What the rows were loaded from: the planned durations (which the
    // count-up reads at load) and the minutes spent, from each row's start,
    // end and time spent; a row's values as the query gives them are read
    // from the set, which stands as loaded until then, when the row is
    // first made.
    struct Loaded {
        std::vector<std::unique_ptr<Value[]>> values;  // null: not read yet
        std::vector<std::string> durations;
        std::vector<double> minutes;
    } loaded_;
    int32_t cursor_ = -1;  // the set's row, while the rows are made; -1 unknown
};

}  // namespace qv
