#include "dialogs/existingtask/ExistingTaskCatalogSave.h"

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/TaskColumns.h"
#include "dialogs/shared/TaskGuid.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"

namespace qv {

bool ExistingTaskCatalogSave::SaveToTaskCat() {
    if (!f_.ValidateTask()) return false;
    {
        // The item stands even when its links fail; the host hears after.
        SaveTransaction save;
        clsNewTask source;
        RecordsetPtr rs;
        // No importance is 6: an empty set to add to.
        source.SetSQL(queries::newCatalogRow());
        if (!source.GetData(rs) || !rs) return false;
        rs->AddNew();
        writeColumns(*rs);
        rs->Update();
        rs->UpdateBatch(adAffectAllChapters);
        rs->Close();
        save.keepSoFar();
        f_.keywords().addCatalogLinks(utilNewTaskGUID());
        save.commit();
    }
    reset();
    return true;
}

// The time history and the spent and scheduled times are not copied;
// Date Done goes in even as 1.0.
void ExistingTaskCatalogSave::writeColumns(Recordset& rs) {
    auto& fields = f_.fields();
    const TaskRecord& r = fields.record();
    rs.Fields("tskStatus") = Value(r.Status);
    rs.Fields("tskDoneDate") = Value(Date{r.DateDone});
    TaskColumns::writeNew(rs, r, fields.utilPossPoints);
    // The catalog's column lacks the second T of the task's.
    const int32_t mode = fields.checklist.CheckListMode;
    if (mode == 1) rs.Fields("tskCheckListGUID") = Value(std::string());
    else if (mode == 2) rs.Fields("tskCheckListGUID") = Value(fields.checklist.utilChecklistKey);
}

void ExistingTaskCatalogSave::reset() {
    auto& c = f_.controls();
    SettingUp raised;
    f_.fields().setUtilNewTaskGUID("");
    c.spellTask.setText("");
    c.SpellNotes.setText("");
    f_.setCKEditMode(0);
}

}  // namespace qv
