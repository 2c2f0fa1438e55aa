#include "store/clsKeywords.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataSpec{adOpenStatic, adLockBatchOptimistic, -1, adLockBatchOptimistic};
}  // namespace

clsKeywords::clsKeywords() : DataSource("clsKeywords", {adOpenStatic, adLockBatchOptimistic, -1, -1}) {}

bool clsKeywords::GetData(RecordsetPtr& rst) {
    return openSet("GetData", sql(), kGetDataSpec, rst);
}

}  // namespace qv
