#include "store/clsSettings.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataSpec{adOpenStatic, adLockBatchOptimistic, adOpenStatic, adLockBatchOptimistic};
}  // namespace

clsSettings::clsSettings() : DataSource("clsSettings", {adOpenStatic, adLockBatchOptimistic, -1, -1}) {}

bool clsSettings::GetData(RecordsetPtr& rst) {
    return openSet("GetData", sql(), kGetDataSpec, rst);
}

}  // namespace qv
