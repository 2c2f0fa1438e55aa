#include "store/clsChecklistsInATask.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataKEYSpec{adOpenStatic, adLockBatchOptimistic, adOpenStatic, adLockBatchOptimistic};
}  // namespace

clsChecklistsInATask::clsChecklistsInATask()
    : DataSource("clsChecklistsInATask", {adOpenStatic, adLockBatchOptimistic, -1, -1}) {}

bool clsChecklistsInATask::GetDataKEY(RecordsetPtr& rst) {
    return openSet("GetDataKEY", sql(), kGetDataKEYSpec, rst);
}

}  // namespace qv
