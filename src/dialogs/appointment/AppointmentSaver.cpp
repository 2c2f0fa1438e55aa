#include "dialogs/appointment/AppointmentSaver.h"

#include <cmath>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/PointsTally.h"
#include "dialogs/shared/SaveConflict.h"
#include "dialogs/shared/StatusWords.h"
#include "dialogs/shared/UnlessEqual.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"
#include "store/clsStatusList.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CNull.h"
#include "values/types/Convert.h"
#include "values/types/DateSerial.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

const char* const kBlankTimeSpent =
    QV_N("Task Appointment Time Spent is blank. Set it to this Task Appointment's duration?");
const char* const kNoChecklist = "-NONE";

RecordsetPtr openKeyed(clsNewTask& source, const Query& sql) {
    RecordsetPtr rs;
    source.SetSQLKey(sql);
    if (!source.GetDataKEY(rs)) throw Failure(err::ObjectRequired, "Object required");
    return rs;
}

double timeOfDay(const std::string& text) {
    const auto serial = tryToDate(text);
    if (!serial) throw Failure(err::TypeMismatch, "Type mismatch");
    return *serial - std::floor(*serial);
}

// Whole-minute boundaries crossed from start to end.
int32_t minutesBetween(double start, double end) {
    const auto minuteOf = [](double serial) { return std::floor(dateserial::roundToMillisecond(serial) * 1440.0 + 1e-6); };
    return roundLong(minuteOf(end) - minuteOf(start));
}

int16_t levelOf(const std::string& tag) { return toInteger(tag); }

// The row's level as the tally reads it: a null is no level.
int32_t levelIn(Recordset& rs, const char* column) {
    const Value v = rs.Fields(column).value();
    return v.isNull() ? -1 : v.toInt32();
}

}  // namespace

const char* AppointmentSaver::firstFailure() const {
    auto& c = f_.controls();
    if (!IsTime(c.smtTimes.tool("START").text())) return QV_N("The Task Start time must be a valid time.");
    if (!IsTime(c.smtTimes.tool("END").text())) return QV_N("The Task End time must be a valid time.");
    if (c.spellTask.text().empty()) return QV_N("Task Description cannot be blank.");
    const std::string& deadline = c.smtABOUT.tool("DEADLINE").text();
    if (!deadline.empty() && !readsAsDate(deadline))
        return QV_N("The Task Deadline must be a valid date, and optionally, a time.");
    if (!IsTime(c.smtABOUT.tool("NEEDED").text())) return QV_N("Time Needed must be a time value.");
    if (!IsTime(c.smtABOUT.tool("SPENT").text())) return QV_N("Time Spent must be a time value.");
    return nullptr;
}

// A No leaves "SAVE" enabled: every path past the checks enables it.
bool AppointmentSaver::ValidateTask() {
    Tool& save = f_.controls().smtActions.tool("SAVE");
    if (const char* message = firstFailure()) {
        DialogMessages::inform(tr(message));
        save.setEnabled(false);
        return false;
    }
    const bool ok = askBlankTimeSpent();
    save.setEnabled(true);
    return ok;
}

bool AppointmentSaver::askBlankTimeSpent() {
    Tool& spent = f_.controls().smtTimes.tool("TIMESPENT");
    if (IsTime(spent.text())) return true;
    if (ui().msgBox(tr(kBlankTimeSpent), vbYesNo | vbInformation, kProgramTitle) == vbYes) {
        spent.setText(f_.getTATimeNeeded());
        return true;
    }
    f_.controls().smtActions.tool("SAVE").setEnabled(false);
    return false;
}

// One save, committed before the host hears of it. Both rows are those the
// dialog loaded: only what the user changed since is written, each field
// checked to hold still what was loaded, so another user's changes to other
// fields stay and one to the same field is asked about first. A failure on
// the task's row leaves the slot's row stored, as two separate writes
// always did; a No to the question leaves both as they were.
bool AppointmentSaver::UpdateTASTask() {
    f_.OverwriteDeclined = false;
    if (!ValidateTask()) return false;
    g().SettingUp = true;
    const bool saved = SaveConflict::settle([&] { return saveRows(); },
                                            [&] {
                                                for (auto* rs : {f_.SlotRow.get(), f_.TaskRow.get()})
                                                    if (rs) rs->OverwriteStored();
                                            },
                                            &f_.OverwriteDeclined);
    if (!saved) {
        if (f_.OverwriteDeclined) g().SettingUp = false;
        return false;
    }
    g().SettingUp = false;
    return true;
}

// The two rows are judged against other users' changes before either is
// written; then the slot, then the task with its sums.
bool AppointmentSaver::saveRows() {
    SaveTransaction save;
    clsNewTask slotSource;
    clsNewTask taskSource;
    RecordsetPtr slot = f_.SlotRow ? f_.SlotRow
                                   : openKeyed(slotSource, queries::appointmentByKey(g().CurrentTaskGUID));
    f_.StopTHETimer();
    writeAppointment(*slot);
    RecordsetPtr task =
        f_.TaskRow
            ? f_.TaskRow
            : openKeyed(taskSource, queries::taskByKey(f_.TATaskGUID));
    writeTask(*task);
    slot->Update();
    slot->UpdateBatch(adAffectAllChapters);
    ui().doEvents();
    save.keepSoFar();
    writeTaskSums(*task);
    save.commit();
    for (auto* rows : {&f_.SlotRow, &f_.TaskRow}) {
        if (*rows && (*rows)->State() == adStateOpen) (*rows)->Close();
        rows->reset();
    }
    return true;
}

void AppointmentSaver::writeAppointment(Recordset& rs) {
    auto& c = f_.controls();
    rs.WriteUnchecked("taDuration");
    markWorked(rs);
    rs.Fields("taTimeWorked") = Value(FormatCTasTime(c.smtTimes.tool("TIMESPENT").text()));
    const Tool& project = c.smtABOUT.tool("PROJECT");
    if (!UnlessEqual::same(rs.Fields("taProject").value(), Value(project.text()))) {
        rs.Fields("taProject") = Value(project.text());
        rs.Fields("taProjectGUIDID") = Value(project.tag());
    }
    UnlessEqual::write(rs, "taImp", Value(levelOf(c.smtABOUT.tool("IMP").tag())));
    UnlessEqual::write(rs, "taDifficulty", Value(levelOf(c.smtABOUT.tool("DIFF").tag())));
    writeSlotTimes(rs);
    UnlessEqual::write(rs, "taTaskDesc", Value(c.spellTask.text()));
    rs.MergeStored();
    const double start = rs.Fields("taStartTime").value().toDate().serial;
    const double end = rs.Fields("taEndTime").value().toDate().serial;
    rs.Fields("taDuration") = Value(minutesBetween(start, end));
}

// Only the two words of the pick say worked or not; the loaded
// "Completed" of a slot never judged leaves the column alone.
void AppointmentSaver::markWorked(Recordset& rs) {
    const std::string& done = f_.controls().smtTimes.tool("DONE").text();
    if (done == tr("Complete")) {
        rs.Fields("taWasWorked") = Value(true);
        fillBlankTimeSpent();
    } else if (done == tr("Not Complete")) {
        rs.Fields("taWasWorked") = Value(false);
    }
}

void AppointmentSaver::fillBlankTimeSpent() {
    Tool& spent = f_.controls().smtTimes.tool("TIMESPENT");
    if (spent.text() == "0:00" || spent.text().empty() || !IsTime(spent.text()))
        spent.setText(f_.getTATimeNeeded());
}

// Both ends take the day of the one date box: a slot lies in one day.
void AppointmentSaver::writeSlotTimes(Recordset& rs) {
    auto& c = f_.controls();
    const double day = std::floor(c.ctTADate.value());
    UnlessEqual::write(rs, "taStartTime", Value(Date{day + timeOfDay(c.smtTimes.tool("START").text())}));
    UnlessEqual::write(rs, "taEndTime", Value(Date{day + timeOfDay(c.smtTimes.tool("END").text())}));
}

// Points and the time scheduled are worked out here, not checked.
void AppointmentSaver::writeTask(Recordset& rs) {
    auto& c = f_.controls();
    for (const char* field : {"tskPossPoints", "tskTimeScheduled", "tskLastMod", "tskHasChecklist"})
        rs.WriteUnchecked(field);
    const std::string oldChecklist = CNull::NVLStr(rs.Fields("tskTCheckListGUID").value());
    rs.Fields("tskNotes") = Value("" + c.SpellNotes.text());
    const Tool& project = c.smtABOUT.tool("PROJECT");
    if (!UnlessEqual::same(rs.Fields("tskProject").value(), Value(project.text()))) {
        rs.Fields("tskProject") = Value(project.text());
        rs.Fields("tskProjectKey") = Value(project.tag());
    }
    UnlessEqual::write(rs, "tskImp", Value(levelOf(c.smtABOUT.tool("IMP").tag())));
    UnlessEqual::write(rs, "tskDifficulty", Value(levelOf(c.smtABOUT.tool("DIFF").tag())));
    UnlessEqual::write(rs, "tskTimeNeeded", Value(FormatCTasTime(c.smtABOUT.tool("NEEDED").text())));
    UnlessEqual::write(rs, "tskDesc", Value(c.spellTask.text()));
    writeTaskStatus(rs);
    writeTaskChecklist(rs, oldChecklist);
    rs.MergeStored();
}

// From the row as it now stands, the slot's own row already stored.
void AppointmentSaver::writeTaskSums(Recordset& rs) {
    const Value needed = rs.Fields("tskTimeNeeded").value();
    // A null Time Needed is neither short nor long.
    const int32_t minutes = needed.isNull() ? 11 : needed.toInt32();
    rs.Fields("tskPossPoints") =
        Value(PointsTally::tally(g().PointsTable, levelIn(rs, "tskImp"), levelIn(rs, "tskDifficulty"),
                                 minutes, CNull::NVLBool(rs.Fields("tskHasChecklist").value()),
                                 CNull::NVLBool(rs.Fields("tskHasSchedule").value())));
    clsStatusList sum;
    RecordsetPtr total;
    sum.SetSQL(queries::scheduledMinutesOfTask(f_.TATaskGUID));
    if (!sum.GetDataKEY(total)) throw Failure(err::ObjectRequired, "Object required");
    rs.Fields("tskTimeScheduled") = Value(CNull::NVLLng(total->Fields("QVTOTAL").value()));
    total->Close();
    rs.Update();
    rs.UpdateBatch(adAffectAllChapters);
}

// Only Completed is ever written here; any other pick changes the tool alone.
void AppointmentSaver::writeTaskStatus(Recordset& rs) {
    const auto status = tryToLong(f_.controls().smtABOUT.tool("STATUS").tag());
    if (!status || *status != StatusWords::kCompleted) return;
    const double now = clock().now();
    rs.Fields("tskStatus") = Value(int32_t{StatusWords::kCompleted});
    rs.Fields("tskCurrent") = Value(false);
    rs.Fields("tskLastMod") = Value(Date{now});
    rs.Fields("tskWasImported") = Value(false);
    rs.Fields("tskDoneDate") = Value(Date{std::floor(now)});
}

void AppointmentSaver::writeTaskChecklist(Recordset& rs, const std::string& oldKey) {
    f_.followChecklist();
    const std::string& key = f_.TACheckListGUID;
    if (key == kNoChecklist) {
        rs.Fields("tskTCheckListGUID") = Value(std::string());
        rs.Fields("tskHasChecklist") = Value(false);
    } else if (key != oldKey) {
        rs.Fields("tskTCheckListGUID") = Value(key);
        rs.Fields("tskHasChecklist") = Value(true);
    }
}

}  // namespace qv
