#include "dialogs/existingtask/ExistingTaskFields.h"

#include <cmath>

#include "dialogs/existingtask/ExistingTaskControls.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/TaskGuid.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "values/types/TextCase.h"
#include "values/types/Convert.h"
#include "values/types/DateTimeFormatter.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

const char* const kNoProject = "NOPROJECT";
const char* const kProjectPrefix = "PRJ-";
constexpr std::size_t kGuidLength = 36;

// A tag that holds no number counts as nothing chosen.
int32_t tagNumber(const Tool& tool) {
    const std::string& tag = tool.tag();
    if (tag.empty()) return kNothingChosen;
    try {
        return toLong(tag);
    } catch (...) {
        return kNothingChosen;
    }
}

// Chooses the entry tagged value: the list shows its caption and takes its tag.
void chooseByTag(Tool& list, int32_t value) {
    const std::string tag = std::to_string(value);
    for (const auto& item : list.items()) {
        if (item->tag() != tag) continue;
        list.setText(item->caption());
        list.setTag(item->tag());
        return;
    }
}

}  // namespace

ExistingTaskFields::ExistingTaskFields(ExistingTaskControls& c) : c_(c) {}

ExistingTaskFields::~ExistingTaskFields() = default;

bool ExistingTaskFields::openTaskRow() {
    const auto& s = g();
    Query query;
    if (s.TaskMode == 0 || s.TaskMode == 1 || s.TaskMode == 5)
        query = queries::taskByKey(s.CurrentTaskGUID);
    else if (s.TaskMode == 6)
        query = queries::catalogItemByKey(s.TaskCatGUID);
    else
        return false;
    closeTaskRow();
    TaskRowSource = std::make_unique<clsNewTask>();
    TaskRowSource->SetSQL(query);
    RecordsetPtr rs;
    if (!TaskRowSource->GetData(rs) || !rs) return false;
    TaskRow = rs;
    return true;
}

void ExistingTaskFields::closeTaskRow() {
    if (TaskRow && TaskRow->State() == adStateOpen) TaskRow->Close();
    TaskRow.reset();
    TaskRowSource.reset();
}

// IsCurrent reads the checked state of a drop-down, which never holds one,
// so the pack always says false here; the save reads the list's value.
void ExistingTaskFields::PackATask() {
    auto& r = rec_;
    r.Desc = c_.spellTask.text();
    r.KeywordList = utilKeywordList();
    r.IsCurrent = c_.smtABOUT.tool("ISCURRENT").checked();
    r.TaskGUID = utilNewTaskGUID();
    r.CustSortQV = sort_.utilCustSortQV();
    r.CustProj = sort_.utilCustProj(utilProjectKey());
    if (r.IsCurrent) r.CustCur = sort_.utilCustCur();
    r.Notes = c_.SpellNotes.text();
    packTimes();
    r.Imp = utilImp();
    r.Diff = utilDiff();
    r.ChecklistKey = checklist.utilChecklistKey;
    r.HasChecklist = checklist.utilCheckListExists;
    r.ChecklistName = checklist.utilChecklistName;
    r.HasNotes = !r.Notes.empty();
    r.HasKeywords = KeywordCount >= 1;
    // Kept false by decision: the schedule bonus and the longer delete
    // questions never see a schedule.
    r.HasSchedule = false;
    r.Deadline = c_.ctDeadline.value() >= 2.0 ? utilDeadLine() : kNoDate;
    r.CreatedDate = clock().now();
    r.LastMod = r.CreatedDate;
    r.Project = utilProjectName();
    r.ProjectKey = utilProjectKey();
    r.TaskGUID = utilNewTaskGUID();
    r.PossPoints = utilPossPoints;
    r.Status = utilStatus();
    r.DateDone = c_.ctTheDateDone.value() >= 2.0 ? utiltheDateDone() : kNoDate;
}

// Only a time that differs from its loaded text is read again; a refused
// one goes back to the loaded text.
void ExistingTaskFields::packTimes() {
    Tool& needed = c_.smtABOUT.tool("NEEDED");
    if (needed.text() != needed.tag()) {
        if (!CheckCTasTime(needed.text())) needed.setText(needed.tag());
        setUtilTimeNeeded(FormatCTasTime(needed.text()));
        rec_.TimeNeeded = utilTimeNeeded();
    }
    Tool& spent = c_.smtABOUT.tool("SPENT");
    if (spent.text() != spent.tag()) {
        if (!CheckCTasTime(spent.text())) spent.setText(spent.tag());
        setUtilTimeSpent(FormatCTasTime(spent.text()));
        rec_.TimeSpent = utilTimeSpent();
    }
}

// The numeric picks read their list's tag into their slot and write by
// choosing the entry of that tag, keeping the number even when none has it.
int32_t ExistingTaskFields::readPick(const char* key, int32_t& slot) {
    slot = kNothingChosen;
    slot = tagNumber(c_.smtABOUT.tool(key));
    return slot;
}

void ExistingTaskFields::writePick(const char* key, int32_t& slot, int32_t value) {
    chooseByTag(c_.smtABOUT.tool(key), value);
    slot = value;
}

int32_t ExistingTaskFields::utilStatus() { return readPick("STATUS", status_); }

void ExistingTaskFields::setUtilStatus(int32_t value) { writePick("STATUS", status_, value); }

int32_t ExistingTaskFields::utilImp() { return readPick("IMP", imp_); }

void ExistingTaskFields::setUtilImp(int32_t value) { writePick("IMP", imp_, value); }

int32_t ExistingTaskFields::utilDiff() { return readPick("DIFF", diff_); }

void ExistingTaskFields::setUtilDiff(int32_t value) { writePick("DIFF", diff_, value); }

std::string ExistingTaskFields::utilProjectName() const { return c_.smtABOUT.tool("PROJECT").text(); }

void ExistingTaskFields::setUtilProjectName(const std::string& name) {
    Tool& list = c_.smtABOUT.tool("PROJECT");
    for (const auto& item : list.items())
        if (item->type() == ttOption && item->caption() == name) list.setText(name);
}

// The key behind "PRJ-" of the first entry of that caption, whatever entry
// it is: "New Project" left standing gives "PROJECT". A separator is no entry.
std::string ExistingTaskFields::utilProjectKey() const {
    const Tool& list = c_.smtABOUT.tool("PROJECT");
    for (const auto& item : list.items()) {
        if (item->type() == ttDropSeparator || item->caption() != list.text()) continue;
        const std::string& key = item->key();
        return key.size() > 4 ? key.substr(4, kGuidLength) : std::string();
    }
    return kNoProject;
}

void ExistingTaskFields::setUtilProjectKey(const std::string& key) {
    Tool& list = c_.smtABOUT.tool("PROJECT");
    if (Tool* item = list.item(kProjectPrefix + key)) list.setText(item->caption());
}

int32_t ExistingTaskFields::utilTimeNeeded() {
    const std::string text = c_.smtABOUT.tool("NEEDED").text();
    timeNeeded_ = IsTime(text) ? FormatCTasTime(text) : 0;
    return timeNeeded_;
}

void ExistingTaskFields::setUtilTimeNeeded(int32_t minutes) {
    if (minutes != kNothingChosen) c_.smtABOUT.tool("NEEDED").setText(SetTimeFormat(minutes));
    timeNeeded_ = minutes;
}

int32_t ExistingTaskFields::utilTimeSpent() {
    const std::string text = c_.smtTimes.tool("TIMESPENT").text();
    if (text.empty()) timeSpent_ = 0;
    else timeSpent_ = IsTime(text) ? FormatCTasTime(text) : kNothingChosen;
    return timeSpent_;
}

void ExistingTaskFields::setUtilTimeSpent(int32_t minutes) {
    if (minutes >= 0) c_.smtTimes.tool("TIMESPENT").setText(SetTimeFormat(minutes));
    timeSpent_ = minutes;
}

float ExistingTaskFields::utilGetDeadTime() const {
    const std::string text = c_.smtABOUT.tool("DEADTIME").text();
    if (!IsTime(text)) return 0.0f;
    const auto t = tryToDate(text);
    return t ? toSingleFloat(*t - std::floor(*t)) : 0.0f;
}

// The time of day goes through single precision: a deadline typed as
// 17:00 comes back a little before it.
double ExistingTaskFields::utilDeadLine() const {
    return std::floor(c_.ctDeadline.value()) + static_cast<double>(utilGetDeadTime());
}

void ExistingTaskFields::setUtilDeadLine(double value) {
    Tool& time = c_.smtABOUT.tool("DEADTIME");
    if (value <= kNoDate) {
        c_.ctDeadline.setValue(kNoDate);
        time.setText("");
        return;
    }
    const double day = std::floor(value);
    c_.ctDeadline.setValue(day);
    if (value - day > 0) time.setText(DateTimeFormatter::current().longTime(value - day));
}

double ExistingTaskFields::utiltheDateDone() const { return std::floor(c_.ctTheDateDone.value()); }

void ExistingTaskFields::setUtiltheDateDone(double value) {
    Tool& host = c_.smtABOUT.tool("DATEDONE");
    if (value <= kNoDate) {
        host.setVisible(false);
        return;
    }
    c_.ctTheDateDone.setValue(std::floor(value));
    host.setHostedControl("cttheDateDone");
    host.setVisible(true);
}

void ExistingTaskFields::setUtilNewTaskGUID(const std::string& guid) { g().CurrentTaskGUID = guid; }

std::string ExistingTaskFields::utilKeywordList() {
    keywordList_ = KeywordSheet::bagText(c_.smtKeywords);
    return keywordList_;
}

void ExistingTaskFields::setUtilKeywordList(const std::string& bag) {
    if (bag.empty()) return;
    const auto ticked = KeywordSheet::tickedIn(bag);
    for (const auto& t : c_.smtKeywords.tools())
        if (t->type() != ttHeading && t->type() != ttButton)
            t->setChecked(ticked.count(TextCase::upper(t->key())) > 0);
    keywordList_ = bag;
}

}  // namespace qv
