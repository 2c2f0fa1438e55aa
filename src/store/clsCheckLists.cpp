#include "store/clsCheckLists.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataKEYSpec{adOpenStatic, adLockBatchOptimistic, adOpenStatic, adLockBatchOptimistic};
}  // namespace

clsCheckLists::clsCheckLists() : DataSource("clsCheckLists", {adOpenStatic, adLockBatchOptimistic, -1, -1}) {}

bool clsCheckLists::GetDataKEY(RecordsetPtr& rst) {
    return openSet("GetDataKEY", sql(), kGetDataKEYSpec, rst);
}

}  // namespace qv
