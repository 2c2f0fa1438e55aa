#include "dialogs/newtask/NewTaskFields.h"

#include <cmath>

#include "dialogs/newtask/NewTaskControls.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/TaskGuid.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "toolkit/Ports.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Translate.h"
#include "values/types/Convert.h"
#include "values/types/DateTimeFormatter.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kNoProject = "NOPROJECT";
const char* const kBadTimeNeeded = QV_N("Value for Time Needed entered is not recognized as a valid time.");
const char* const kBadDeadTime = QV_N("Deadline time is not a recognized time. Please reenter it.");
}  // namespace

void NewTaskFields::PackATask() {
    auto& r = rec_;
    r.Desc = c_.spellTask.text();
    r.KeywordList = utilKeywordList();
    r.IsCurrent = c_.smtOther.tool("ISCURRENT").checked();
    r.TaskGUID = utilNewTaskGUID();
    r.CustSortQV = utilCustSortQV();
    r.CustProj = utilCustProj();
    if (r.IsCurrent) r.CustCur = utilCustCur();
    r.Notes = c_.SpellNotes.text();
    r.TimeNeeded = utilTimeNeeded();
    r.Imp = utilImp();
    r.Diff = utilDiff();
    r.ChecklistKey = checklist.utilChecklistKey;
    r.HasChecklist = checklist.utilCheckListExists;
    r.ChecklistName = checklist.utilChecklistName;
    r.HasNotes = !c_.SpellNotes.text().empty();
    r.HasKeywords = KeywordCount > 0;
    r.HasSchedule = false;
    r.Deadline = c_.ctDeadline.value() > 1.0 ? utilDeadLine() : kNoDate;
    r.CreatedDate = clock().now();
    r.LastMod = clock().now();
    r.Project = utilProjectName();
    r.ProjectKey = utilProjectKey();
    r.TaskGUID = utilNewTaskGUID();
    r.PossPoints = utilPossPoints;
    r.Status = utilStatus();
    r.DateDone = c_.ctTheDateDone.value() > 1.0 ? utiltheDateDone() : kNoDate;
}

int32_t NewTaskFields::utilImp() {
    imp_ = kNothingChosen;
    imp_ = SheetPicks::checkedTag(c_.smtImp);
    return imp_;
}

void NewTaskFields::setUtilImp(int32_t value) {
    SheetPicks::checkByTag(c_.smtImp, value);
    imp_ = value;
}

int32_t NewTaskFields::utilDiff() {
    diff_ = kNothingChosen;
    diff_ = SheetPicks::checkedTag(c_.smtDiff);
    return diff_;
}

void NewTaskFields::setUtilDiff(int32_t value) {
    SheetPicks::checkByTag(c_.smtDiff, value);
    diff_ = value;
}

std::string NewTaskFields::utilProjectName() const {
    const Tool* t = SheetPicks::checkedTool(c_.smtProj);
    return t ? t->caption() : kNoProject;
}

std::string NewTaskFields::utilProjectKey() const {
    const Tool* t = SheetPicks::checkedTool(c_.smtProj);
    return t ? t->key() : kNoProject;
}

void NewTaskFields::setUtilProjectKey(const std::string& key) {
    SheetPicks::uncheckAll(c_.smtProj);
    SheetPicks::checkByKey(c_.smtProj, key);
}

int32_t NewTaskFields::utilStatus() {
    status_ = SheetPicks::listValue(c_.smtOther.tool("STATUS"));
    return status_;
}

void NewTaskFields::setUtilStatus(int32_t value) {
    SheetPicks::setListValue(c_.smtOther.tool("STATUS"), value);
    status_ = value;
}

int32_t NewTaskFields::utilTimeNeeded() {
    int32_t value = SheetPicks::checkedTag(c_.smtTimeNeeded);
    // A preset tagged 0 counts like no preset.
    if (value != kNothingChosen && value != 0) return value;
    Tool* custom = c_.smtTimeNeeded.find("CUSTOMTIME");
    if (!custom) {
        DialogMessages::inform(tr(kBadTimeNeeded));
        return 0;
    }
    const std::string text = custom->text();
    if (IsTime(text)) return FormatCTasTime(text);
    if (!text.empty()) {
        DialogMessages::inform(tr(kBadTimeNeeded));
        custom->setText("");
    }
    return value;
}

// A custom value shows even where a preset matched.
void NewTaskFields::setUtilTimeNeeded(int32_t minutes) {
    SheetPicks::checkByTag(c_.smtTimeNeeded, minutes);
    if (minutes != kNothingChosen)
        if (Tool* custom = c_.smtTimeNeeded.find("CUSTOMTIME")) custom->setText(SetTimeFormat(minutes));
}

double NewTaskFields::utilDeadLine() {
    return std::floor(c_.ctDeadline.value()) + static_cast<double>(utilGetDeadTime());
}

void NewTaskFields::setUtilDeadLine(double value) {
    if (value <= kNoDate) {
        c_.ctDeadline.clear();
        return;
    }
    const double day = std::floor(value);
    c_.ctDeadline.setValue(day);
    if (value - day > 0) writeDeadTime(DateTimeFormatter::current().longTime(value - day));
}

float NewTaskFields::utilGetDeadTime() {
    const std::string text = c_.smtOther.tool("DEADTIME").text();
    if (text.empty()) return 0.0f;
    if (IsTime(text)) {
        if (auto t = tryToDate(text)) return toSingleFloat(*t);
    }
    DialogMessages::inform(tr(kBadDeadTime));
    writeDeadTime("");
    return 0.0f;
}

double NewTaskFields::utiltheDateDone() const { return c_.ctTheDateDone.value(); }

void NewTaskFields::setUtiltheDateDone(double value) {
    Tool& host = c_.smtOther.tool("DATEDONE");
    if (value <= kNoDate) {
        host.setVisible(false);
        return;
    }
    c_.ctTheDateDone.setValue(value);
    host.setHostedControl("cttheDateDone");
    host.setVisible(true);
}

std::string NewTaskFields::utilKeywordList() {
    keywordList_ = KeywordSheet::bagText(c_.smtKeywords);
    return keywordList_;
}

void NewTaskFields::setUtilNewTaskGUID(const std::string& guid) { g().CurrentTaskGUID = guid; }

int32_t NewTaskFields::utilCustSortQV() { return sort_.utilCustSortQV(); }

int32_t NewTaskFields::utilCustCur() { return sort_.utilCustCur(); }

int32_t NewTaskFields::utilCustProj() { return sort_.utilCustProj(utilProjectKey()); }

void NewTaskFields::writeDeadTime(const std::string& text) {
    writingDeadTime_ = true;
    c_.smtOther.tool("DEADTIME").setText(text);
    writingDeadTime_ = false;
}

}  // namespace qv
