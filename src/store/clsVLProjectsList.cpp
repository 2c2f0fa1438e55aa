#include "store/clsVLProjectsList.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataSpec{adOpenStatic, adLockBatchOptimistic, -1, -1};
}  // namespace

clsVLProjectsList::clsVLProjectsList()
    : DataSource("clsVLProjectsList", {adOpenStatic, adLockBatchOptimistic, -1, -1}) {}

bool clsVLProjectsList::GetData(RecordsetPtr& rst) {
    return openSet("GetData", sql(), kGetDataSpec, rst);
}

}  // namespace qv
