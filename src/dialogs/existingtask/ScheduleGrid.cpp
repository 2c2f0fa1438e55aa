#include "dialogs/existingtask/ScheduleGrid.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/StoreQueries.h"
#include "store/clsTaskSchedule.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextFill.h"
#include "toolkit/Tool.h"
#include "toolkit/Translate.h"
#include "values/types/CCreateGuid.h"
#include "values/types/Convert.h"
#include "values/types/DateTimeFormatter.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

constexpr const char* kStart = "taStartTime";
constexpr const char* kEnd = "taEndTime";
constexpr const char* kWorked = "taWasWorked";
constexpr const char* kMinutes = "taTimeWorked";
constexpr const char* kKey = "taGUIDID";
constexpr const char* kCalc = "CalcColumn";
constexpr const char* kBtn = "BtnColumn";
constexpr const char* kFake = "FakeColumn";
constexpr const char* kButtonText = ">>>";
// Just short of an hour (59 minutes and about 59.8 seconds): a new slot
// still reads one hour once rounded to minutes.
constexpr double kNewSlotLength = 0.041664;

struct Shown {
    const char* key;
    const char* header;
    int32_t position;
    Grid::CellStyle style;
    double layoutFactor;
    double resizeFactor;  // 0: the resize leaves the width alone
};

constexpr Shown kShown[] = {
    {kWorked, QV_N("Done?"), 1, Grid::CellStyle::CheckBox, 0.06, 0},
    {kStart, QV_N("Start"), 2, Grid::CellStyle::Edit, 0.275, 0.25},
    {kEnd, QV_N("End"), 3, Grid::CellStyle::Edit, 0.275, 0.25},
    {kCalc, QV_N("Duration"), 4, Grid::CellStyle::Edit, 0.1, 0.1},
    {kBtn, ">>", 5, Grid::CellStyle::Button, 0.05, 0.12},
    {kFake, QV_N("Actual Time Spent"), 7, Grid::CellStyle::Edit, 0.2, 0.2},
};

constexpr const char* kHidden[] = {"taGUIDID", "taTaskGUIDID", "taProject", "taProjectGUIDID",
                                   "taTaskDesc", "taImp", "taDifficulty", kMinutes};

std::string cellText(const Value& v) {
    switch (v.kind()) {
    case Value::Kind::Date: return DateTimeFormatter::current().generalDate(v.toDate().serial);
    case Value::Kind::Bool: return v.toBool() ? "True" : "False";
    default: return v.toText();
    }
}

// The planned minutes of a row, rounded half to even; none without both times.
std::optional<int32_t> plannedMinutes(std::optional<double> start, std::optional<double> end) {
    if (!start || !end) return std::nullopt;
    return roundLong((*end - *start) * 1440.0);
}

// A long schedule holds few distinct durations: a load puts each in words
// once. A text that failed (none) is asked for again, as for each row.
class DurationTexts {
public:
    std::string of(std::optional<double> start, std::optional<double> end) {
        const std::optional<int32_t> minutes = plannedMinutes(start, end);
        if (!minutes) return {};
        if (const auto found = known_.find(*minutes); found != known_.end()) return found->second;
        std::string text = SetTimeFormat(*minutes);
        if (!text.empty()) known_.emplace(*minutes, text);
        return text;
    }

private:
    std::unordered_map<int32_t, std::string> known_;
};

bool isChecked(const std::string& text) { return !text.empty() && text != "0" && text != "False"; }

std::string trimmed(std::string s) {
    const auto b = s.find_first_not_of(' ');
    if (b == std::string::npos) return {};
    return s.substr(b, s.find_last_not_of(' ') - b + 1);
}

}  // namespace

ScheduleGrid::ScheduleGrid(Sheet& smtABOUT, Sheet& smtSkedTimes, Sheet& smtTimes, Hooks hooks)
    : smtABOUT_(smtABOUT), smtSkedTimes_(smtSkedTimes), smtTimes_(smtTimes), hooks_(std::move(hooks)) {
    grid_.BeforeCellUpdate.connect([this](int32_t r, int32_t c, const std::string& text, bool& cancel) {
        trapped("gridSked_BeforeCellUpdate", [&] { BeforeCellUpdate(r, c, text, cancel); });
    });
    grid_.AfterCellUpdate.connect(
        [this](int32_t r, int32_t c) { trapped("gridSked_AfterCellUpdate", [&] { AfterCellUpdate(r, c); }); });
    grid_.ClickCellButton.connect(
        [this](int32_t r, int32_t c) { trapped("gridSked_ClickCellButton", [&] { ClickCellButton(r, c); }); });
    grid_.setDisplayFilter([this](int32_t, int32_t c, const std::string& v) { return AfterGetValue(c, v); });
}

ScheduleGrid::~ScheduleGrid() = default;

void ScheduleGrid::trapped(const char* procedure, const std::function<void()>& body) {
    if (hooks_.trapped) hooks_.trapped(procedure, body);
    else trap("frmExistingTask", procedure, body);
}

int32_t ScheduleGrid::col(const char* key) const { return grid_.columnOf(key); }

void ScheduleGrid::initSked() {
    source_ = std::make_unique<clsTaskSchedule>();
    source_->SetSQL(queries::scheduleOfTask(g().CurrentTaskGUID));
    rs_ = nullptr;
    source_->Class_GetDataMember("Recordset", rs_);
    if (!rs_) {
        grid_.clearRows();
        loaded_ = {};
        cursor_ = -1;
        return;
    }
    if (grid_.columnCount() == 0) InitializeLayout();
    loadRows();
    // The rows just read: the store is not asked to count them again.
    const int32_t count = source_->GetRowCount();
    grid_.setCaption(fill(trn("Task Appointments: %1", "Task Appointments: %1", static_cast<unsigned long>(count)),
                         {std::to_string(count)}));
    setCount(count);
}

void ScheduleGrid::setCount(int32_t count) {
    skedRowCount_ = count;
    if (hooks_.countChanged) hooks_.countChanged(count);
}

void ScheduleGrid::killSked() {
    rs_ = nullptr;
    source_.reset();
    grid_.clearRows();
    loaded_ = {};
    cursor_ = -1;
}

// The query's columns as they come, then the three the dialog adds.
void ScheduleGrid::InitializeLayout() {
    const int32_t fields = rs_->FieldCount();
    for (int32_t i = 0; i < fields; ++i) {
        const std::string name = rs_->FieldAt(i).Name();
        grid_.addColumn(name, name);
    }
    boundColumns_ = fields;
    unbound_ = {grid_.addColumn(kCalc, kCalc), grid_.addColumn(kBtn, kBtn), grid_.addColumn(kFake, kFake)};
    for (const char* key : kHidden)
        if (int32_t c = col(key); c >= 0) {
            grid_.setColumnVisible(c, false);
            grid_.setColumnPosition(c, 100);
        }
    if (int32_t c = col(kMinutes); c >= 0) {
        grid_.setColumnCaption(c, tr("Time Spent"));
        grid_.setColumnPosition(c, 6);
    }
    for (const Shown& s : kShown)
        if (int32_t c = col(s.key); c >= 0) {
            grid_.setColumnCaption(c, tr(s.header));
            grid_.setColumnPosition(c, s.position);
            grid_.setColumnStyle(c, s.style);
        }
    if (int32_t c = col(kBtn); c >= 0) grid_.setColumnTip(c, tr("Copy the Duration to the Actual Time Spent"));
    applyLayoutWidths();
}

void ScheduleGrid::applyLayoutWidths() {
    const double w = grid_.extentWidth();
    laidOut_ = grid_.columnCount() > 0 && w > 0;
    for (const Shown& s : kShown)
        if (int32_t c = col(s.key); c >= 0) grid_.setColumnWidth(c, roundLong(s.layoutFactor * w));
}

void ScheduleGrid::applyResizeWidths() {
    if (grid_.columnCount() == 0) return;
    const double w = grid_.extentWidth();
    for (const Shown& s : kShown)
        if (int32_t c = col(s.key); c >= 0 && s.resizeFactor > 0)
            grid_.setColumnWidth(c, roundLong(s.resizeFactor * w));
}

// The rows are read once. The planned durations and the minutes, which
// the count-up reads at load, come from each row's start, end and time
// spent; a row's other values and its texts wait until the row is first
// shown, and are read from the set, which stands as loaded until then.
void ScheduleGrid::loadRows() {
    Loaded loaded;
    auto& rs = *rs_;
    const bool any = !rs.EOF_();
    const auto rows = static_cast<std::size_t>(std::max(rs.RecordCount(), 0));
    loaded.durations.reserve(rows);
    loaded.minutes.reserve(rows);
    const int32_t start = col(kStart), end = col(kEnd), minutes = col(kMinutes);
    const auto read = [&rs, this](int32_t column) {
        return column < 0 || column >= boundColumns_ ? Value() : rs.FieldAt(column).value();
    };
    DurationTexts durations;
    if (any) rs.MoveFirst();
    while (!rs.EOF_()) {
        std::optional<double> from, to;
        double worked = 0.0;
        if (const Value v = read(start); !v.isNull()) from = v.toDate().serial;
        if (const Value v = read(end); !v.isNull()) to = v.toDate().serial;
        if (const Value v = read(minutes); !v.isNull()) worked = v.toDouble();
        loaded.durations.push_back(durations.of(from, to));
        loaded.minutes.push_back(worked);
        rs.MoveNext();
    }
    loaded.values.resize(loaded.minutes.size());
    loaded_ = std::move(loaded);
    cursor_ = -1;
    // Made while a view paints: a fault goes down the error path as the
    // load's own would, and leaves the row empty.
    grid_.setRows(static_cast<int32_t>(loaded_.minutes.size()), [this](int32_t row) {
        std::vector<std::string> cells;
        trapped("initSked", [&] { cells = makeRow(row); });
        return cells;
    });
}

// The row's values, from the set's row of that place.
void ScheduleGrid::fetchRow(int32_t row) {
    const auto r = static_cast<std::size_t>(row);
    if (r >= loaded_.values.size() || loaded_.values[r]) return;
    auto& rs = *rs_;
    if (cursor_ < 0 || cursor_ > row) {
        rs.MoveFirst();
        cursor_ = 0;
    }
    for (; cursor_ < row; ++cursor_) rs.MoveNext();
    auto values = std::make_unique<Value[]>(static_cast<std::size_t>(boundColumns_));
    for (int32_t i = 0; i < boundColumns_; ++i) values[static_cast<std::size_t>(i)] = rs.FieldAt(i).value();
    loaded_.values[r] = std::move(values);
}

// Before the set changes under the rows still to show, they take their
// values as they were loaded.
void ScheduleGrid::fetchAll() {
    for (int32_t r = 0; r < static_cast<int32_t>(loaded_.values.size()); ++r) fetchRow(r);
}

std::vector<std::string> ScheduleGrid::makeRow(int32_t row) {
    fetchRow(row);
    std::vector<std::string> cells(static_cast<std::size_t>(grid_.columnCount()));
    const auto r = static_cast<std::size_t>(row);
    const auto bound = static_cast<std::size_t>(boundColumns_);
    for (std::size_t i = 0; i < bound; ++i) cells[i] = cellText(loaded_.values[r][i]);
    cells[static_cast<std::size_t>(unbound_.calc)] = loaded_.durations[r];
    cells[static_cast<std::size_t>(unbound_.button)] = kButtonText;
    cells[static_cast<std::size_t>(unbound_.fake)] = SetTimeFormat(loaded_.minutes[r]);
    return cells;
}

const std::string& ScheduleGrid::plannedText(int32_t row) const {
    if (grid_.rowMade(row)) return grid_.cell(row, unbound_.calc);
    return loaded_.durations[static_cast<std::size_t>(row)];
}

// The planned minutes, rounded half to even, as time text.
std::string ScheduleGrid::durationText(std::optional<double> start, std::optional<double> end) {
    const std::optional<int32_t> minutes = plannedMinutes(start, end);
    return minutes ? SetTimeFormat(*minutes) : std::string();
}

// InitializeRow: the planned duration; the button's text; the time spent
// as time text.
void ScheduleGrid::fillUnbound(std::vector<std::string>& cells, std::optional<double> start,
                               std::optional<double> end, std::optional<double> minutes) const {
    cells[static_cast<std::size_t>(unbound_.calc)] = durationText(start, end);
    cells[static_cast<std::size_t>(unbound_.button)] = kButtonText;
    cells[static_cast<std::size_t>(unbound_.fake)] = SetTimeFormat(minutes.value_or(0.0));
}

void ScheduleGrid::InitializeRow(int32_t row) {
    std::vector<std::string> cells = grid_.row(row).cells;
    const std::string& worked = cells[static_cast<std::size_t>(col(kMinutes))];
    fillUnbound(cells, tryToDate(grid_.cell(row, col(kStart))), tryToDate(grid_.cell(row, col(kEnd))),
                worked.empty() ? std::optional<double>(0.0) : tryToDouble(worked));
    for (const char* key : {kCalc, kBtn, kFake}) {
        const int32_t c = col(key);
        grid_.setCell(row, c, cells[static_cast<std::size_t>(c)]);
    }
}

// A long schedule holds few distinct durations: each text is read once.
void ScheduleGrid::CountUpSked() {
    if (grid_.rowCount() == 0) return;
    std::unordered_map<std::string, int32_t> read;
    // Neighbouring rows mostly share their duration: the last one is at hand.
    const std::string* lastText = nullptr;
    int32_t lastMinutes = 0;
    const auto minutesOf = [&](const std::string& text) {
        if (lastText && *lastText == text) return lastMinutes;
        auto [at, added] = read.try_emplace(text, 0);
        if (added) at->second = FormatCTasTime(text);
        lastText = &text;
        lastMinutes = at->second;
        return lastMinutes;
    };
    int64_t sum = minutesOf(plannedText(0));
    int32_t count = 1;
    for (int32_t r = 1; r < grid_.rowCount(); ++r) {
        sum += minutesOf(plannedText(r));
        if (sum > INT32_MAX || sum < INT32_MIN || count == INT32_MAX) throw Failure(err::Overflow, "Overflow");
        ++count;
    }
    setCount(count);
    smtABOUT_.tool("SCHEDULED").setText(SetTimeFormat(static_cast<double>(sum)));
}

void ScheduleGrid::BeforeCellUpdate(int32_t, int32_t column, const std::string& text, bool& cancel) {
    const std::string& key = grid_.column(column).field;
    if ((key == kEnd || key == kStart) && !readsAsDate(text)) cancel = true;
}

void ScheduleGrid::AfterCellUpdate(int32_t row, int32_t column) {
    const std::string& key = grid_.column(column).field;
    if (key == kFake) {
        grid_.setCell(row, col(kMinutes), std::to_string(FormatCTasTime(grid_.cell(row, column))));
        writeField(row, col(kMinutes));
        return;
    }
    if (column >= boundColumns_) return;
    writeField(row, column);
    if (key == kStart || key == kEnd) InitializeRow(row);
}

void ScheduleGrid::ClickCellButton(int32_t row, int32_t column) {
    if (grid_.column(column).field != kBtn) return;
    grid_.updateCell(row, col("fakeColumn"), grid_.cell(row, col(kCalc)));
    InitializeRow(row);
}

// Outside edit mode a start or an end shows its time of day only.
std::string ScheduleGrid::AfterGetValue(int32_t column, const std::string& value) const {
    g().ScheduleTouched = true;
    if (value.empty()) return value;
    const std::string& key = grid_.column(column).field;
    if (key != kStart && key != kEnd) return value;
    const auto serial = tryToDate(value);
    if (!serial) return value;
    return DateTimeFormatter::current().shortTime(*serial - std::trunc(*serial));
}

// The row's cell goes to its field: dates as dates, the check as a
// boolean, the time spent as whole minutes.
void ScheduleGrid::writeField(int32_t row, int32_t column) {
    if (!rs_) return;
    const std::string& key = grid_.column(column).field;
    const std::string& text = grid_.cell(row, column);
    Value v{text};
    if (text.empty()) v = Value{};
    else if (key == kStart || key == kEnd) v = Date{tryToDate(text).value_or(0.0)};
    else if (key == kWorked) v = isChecked(text);
    else if (key == kMinutes) {
        g().ScheduleTouched = true;
        v = FormatCTasTime(text);
    }
    auto& rs = *rs_;
    cursor_ = -1;
    rs.MoveFirst();
    for (int32_t i = 0; i < row && !rs.EOF_(); ++i) rs.MoveNext();
    if (rs.EOF_()) return;
    rs.Fields(key) = v;
    rs.Update();
    rs.UpdateBatch(adAffectAllChapters);
}

void ScheduleGrid::smtSkedBtns_Click(Tool& tool) {
    if (tool.key() == "ADD") addAppointment();
    else if (tool.key() == "DELETE") deleteAppointment();
}

void ScheduleGrid::addAppointment() {
    const std::string key = CCreateGuid::guid();
    const TaskRecord& rec = hooks_.record();
    const std::string diffImp = trimmed(std::to_string(rec.Imp)) + trimmed(std::to_string(rec.Diff));
    const Tool& project = smtABOUT_.tool("PROJECT");
    const double start = clock().now();
    if (source_) fetchAll();
    if (!source_ || !source_->AddTA(key, g().CurrentTaskGUID, project.text(), project.tag(), Date{start},
                                    Date{start + kNewSlotLength}, rec.Desc, diffImp))
        return;
    initSked();
    if (hooks_.ValidateTask) hooks_.ValidateTask();
}

// Only the first of the selected rows goes, and nothing is asked.
void ScheduleGrid::deleteAppointment() {
    const auto& picked = grid_.selectedRows();
    if (picked.empty() || !source_) return;
    const std::string key = grid_.cell(picked.front(), col(kKey));
    fetchAll();
    if (!source_->KillTA(key)) return;
    initSked();
    if (hooks_.ValidateTask) hooks_.ValidateTask();
}

// The strip as designed has no "SCHEDULED", so this does nothing; a strip
// given one gets the copy.
void ScheduleGrid::smtSkedTimes_Click(Tool& tool) {
    if (tool.key() != "COPYTA" || !smtSkedTimes_.hasKey("SCHEDULED")) return;
    const std::string value = smtSkedTimes_.tool("SCHEDULED").text();
    smtSkedTimes_.tool("SPENT").setText(value);
    smtTimes_.tool("TIMESPENT").setText(value);
}

}  // namespace qv
