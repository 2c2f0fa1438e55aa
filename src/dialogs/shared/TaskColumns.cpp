#include "dialogs/shared/TaskColumns.h"

#include "dialogs/shared/TaskRecord.h"
#include "store/Recordset.h"

namespace qv {

void TaskColumns::writeNew(Recordset& rs, const TaskRecord& r, int32_t possPoints) {
    rs.Fields("tskDesc") = Value(r.Desc);
    rs.Fields("tskProject") = Value(r.Project);
    rs.Fields("tskProjectKey") = Value(r.ProjectKey);
    rs.Fields("tskDifficulty") = Value(r.Diff);
    rs.Fields("tskImp") = Value(r.Imp);
    rs.Fields("tskTimeNeeded") = Value(r.TimeNeeded);
    rs.Fields("tskCurrent") = Value(r.IsCurrent);
    rs.Fields("tskHasSchedule") = Value(false);
    rs.Fields("tskNotes") = Value(r.Notes);
    rs.Fields("tskHasNotes") = Value(r.HasNotes);
    rs.Fields("tskCreatedDate") = Value(Date{r.CreatedDate});
    rs.Fields("tskLastMod") = Value(Date{r.LastMod});
    rs.Fields("tskGUIDID") = Value(r.TaskGUID);
    rs.Fields("tskPossPoints") = Value(possPoints);
    if (r.Deadline > kNoDate) rs.Fields("tskDeadline") = Value(Date{r.Deadline});
    rs.Fields("tskCustSortQV") = Value(r.CustSortQV);
    if (r.IsCurrent) rs.Fields("tskCustSortCUR") = Value(r.CustCur);
    rs.Fields("tskCustSortProj") = Value(r.CustProj);
    rs.Fields("tskHasChecklist") = Value(r.HasChecklist);
}

}  // namespace qv
