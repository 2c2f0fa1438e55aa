#include "dialogs/existingtask/ExistingTaskUpdater.h"

#include <algorithm>

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/PointsTally.h"
#include "dialogs/shared/SaveConflict.h"
#include "session/globals/SessionGlobals.h"
#include "store/FieldCodec.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"
#include "values/types/CNull.h"
#include "values/types/TextCase.h"
#include "values/types/TextChars.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
constexpr std::size_t kGuidLength = 36;
const char* const kHistory[] = {"tskTimeN0", "tskTimeN1", "tskTimeN2", "tskTimeN3", "tskTimeN4"};
}  // namespace

// Only the columns the user changed since the dialog loaded the row are
// written, each checked to hold still what was loaded: another user's
// change to any other field stays, and a change to the same field is asked
// about (SaveConflict). The row and its keyword links are one save,
// committed before the host hears of it: the Outlook task too is told once
// the save stands. Links that fail leave the row saved and the old links whole.
bool ExistingTaskUpdater::UpdateTask() {
    const double now = clock().now();
    if (!f_.ValidateTask()) return false;
    auto& fields = f_.fields();
    if (!takeTimeSpent()) return false;
    std::string outlookEntry;
    std::string taskKey;
    const bool saved = SaveConflict::settle([&] { return save(now, outlookEntry, taskKey); },
                                            [&] {
                                                if (fields.TaskRow) fields.TaskRow->OverwriteStored();
                                            });
    if (!saved) return false;
    ui().doEvents();
    if (!outlookEntry.empty()) f_.FireOneOutlookTaskUpdate(outlookEntry, taskKey);
    ui().doEvents();
    fields.IsDirty = false;
    return true;
}

bool ExistingTaskUpdater::save(double now, std::string& outlookEntry, std::string& taskKey) {
    auto& fields = f_.fields();
    SaveTransaction save;
    if (!fields.TaskRow && !fields.openTaskRow()) return false;
    Recordset& row = *fields.TaskRow;
    writeColumns(row, now);
    takeOthersChanges(row);
    shiftCatalogHistory(row);
    row.Update();
    row.UpdateBatch(adAffectAllChapters);
    readOutlookEntry(outlookEntry, taskKey);
    fields.closeTaskRow();
    save.keepSoFar();
    f_.keywords().rewriteLinks();
    save.commit();
    return true;
}

// Stamps and what is worked out from other fields are written as this save
// has them, without the check, so two saves of different fields never meet.
void ExistingTaskUpdater::markBookkeeping(Recordset& row) {
    for (const char* field :
         {"tskLastMod", "tskPossPoints", "tskHasNotes", "tskHasSchedule", "tskWasImported"})
        row.WriteUnchecked(field);
}

// Another user's changes to fields this save leaves alone come into the
// row; the points follow the levels and times as they then stand.
void ExistingTaskUpdater::takeOthersChanges(Recordset& row) {
    const auto taken = row.MergeStored();
    const auto feedsPoints = [](const std::string& f) {
        for (const char* name : {"tskImp", "tskDifficulty", "tskTimeNeeded", "tskHasChecklist"})
            if (FieldCodec::equalsNoCase(f, name)) return true;
        return false;
    };
    if (std::none_of(taken.begin(), taken.end(), feedsPoints)) return;
    const auto level = [&](const char* field) {
        const Value v = row.Fields(field).value();
        return v.isNull() ? -1 : v.toInt32();
    };
    const Value needed = row.Fields("tskTimeNeeded").value();
    row.Fields("tskPossPoints") = Value(PointsTally::tally(
        g().PointsTable, level("tskImp"), level("tskDifficulty"), needed.isNull() ? 0 : needed.toInt32(),
        CNull::NVLBool(row.Fields("tskHasChecklist").value()), false));
}

void ExistingTaskUpdater::writeColumns(Recordset& row, double now) {
    markBookkeeping(row);
    auto& fields = f_.fields();
    const TaskRecord& r = fields.record();
    row.Fields("tskDesc") = Value(r.Desc);
    row.Fields("tskProject") = Value(r.Project);
    row.Fields("tskProjectKey") = Value(r.ProjectKey);
    row.Fields("tskStatus") = Value(r.Status);
    if (r.DateDone > kNoDate) row.Fields("tskDoneDate") = Value(Date{r.DateDone});
    row.Fields("tskTimeSpent") = Value(r.TimeSpent);
    row.Fields("tskImp") = Value(r.Imp);
    row.Fields("tskDifficulty") = Value(r.Diff);
    row.Fields("tskTimeNeeded") = Value(r.TimeNeeded);
    row.Fields("tskNotes") = Value(r.Notes + "");
    const std::string current = TextCase::upper(f_.controls().smtABOUT.tool("ISCURRENT").text());
    row.Fields("tskCurrent") = Value(current == "YES");
    row.Fields("tskHasSchedule") = Value(fields.SkedRowCount >= 1);
    writeChecklist(row);
    row.Fields("tskHasNotes") = Value(!r.Notes.empty());
    row.Fields("tskPossPoints") = Value(fields.utilPossPoints);
    row.Fields("tskLastMod") = Value(Date{now});
    // A cleared deadline stays in the row.
    if (r.Deadline > kNoDate) row.Fields("tskDeadline") = Value(Date{r.Deadline});
    if (row.Fields("tskStatus").value().toInt32() == 0) row.Fields("tskWasImported") = Value(false);
}

// "0:00" on the times sheet leaves the stored Time Spent as it was loaded,
// and so does the loaded text itself: a time of days or weeks does not read
// back to its minutes, and an untouched time must not lose them. A changed
// time the dialog can't read back is refused as the check refuses it,
// rather than written over the stored time as -86.
bool ExistingTaskUpdater::takeTimeSpent() {
    auto& c = f_.controls();
    auto& fields = f_.fields();
    const std::string timer = c.smtTimes.tool("TIMESPENT").text();
    if (timer == "0:00" || timer == c.smtABOUT.tool("SPENT").tag()) return true;
    c.smtABOUT.tool("SPENT").setText(timer);
    fields.setUtilTimeSpent(FormatCTasTime(c.smtABOUT.tool("SPENT").text()));
    fields.record().TimeSpent = fields.utilTimeSpent();
    if (fields.record().TimeSpent != kNothingChosen) return true;
    c.smtActions.tool("UPDATE").setEnabled(false);
    fields.IsDirty = false;
    return false;
}

// A key is written only when the link was made or picked in this dialog.
void ExistingTaskUpdater::writeChecklist(Recordset& row) {
    auto& fields = f_.fields();
    if (fields.record().HasChecklist) {
        row.Fields("tskHasChecklist") = Value(true);
        const int32_t mode = fields.checklist.CheckListMode;
        if (mode == 1 || mode == 2) row.Fields("tskTCheckListGUID") = Value(fields.checklist.utilChecklistKey);
    } else {
        row.Fields("tskHasChecklist") = Value(false);
        row.Fields("tskTCheckListGUID") = Value(std::string());
    }
}

// Each save of a finished task moves the history on, also a second save of
// the same task. The 16-bit read makes a spent time over 32767 minutes an
// overflow.
void ExistingTaskUpdater::shiftCatalogHistory(Recordset& row) {
    const std::string catalogKey = CNull::NVLStr(row.Fields("tskTaskCatGUID").value());
    if (charCount(catalogKey) != kGuidLength || row.Fields("tskStatus").value().toInt32() != 0) return;
    clsNewTask source;
    RecordsetPtr item;
    source.SetSQL(queries::catalogTimeHistory(catalogKey));
    if (!source.GetData(item) || !item) throw Failure(err::ObjectRequired, "Object required");
    if (item->RecordCount() == 1) {
        for (int i = 4; i > 0; --i)
            item->Fields(kHistory[i]) = Value(CNull::NVLInt(item->Fields(kHistory[i - 1]).value()));
        item->Fields(kHistory[0]) = Value(CNull::NVLInt(row.Fields("tskTimeSpent").value()));
        item->Update();
        item->UpdateBatch(adAffectAllChapters);
    }
    item->Close();
}

// The row read again after the write: its Outlook entry, with integration on.
void ExistingTaskUpdater::readOutlookEntry(std::string& entry, std::string& taskKey) {
    auto& fields = f_.fields();
    if (!fields.openTaskRow()) return;
    Recordset& row = *fields.TaskRow;
    if (!g().OutlookIntegrationOn || row.EOF_()) return;
    entry = CNull::NVLStr(row.Fields("tskOUTEntityID").value());
    taskKey = row.Fields("tskGUIDID").value().toText();
}

}  // namespace qv
