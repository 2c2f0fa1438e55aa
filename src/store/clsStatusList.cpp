#include "store/clsStatusList.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataKEYSpec{adOpenStatic, adLockReadOnly, adOpenStatic, adLockReadOnly};
}  // namespace

clsStatusList::clsStatusList() : DataSource("clsStatusList", {adOpenStatic, adLockReadOnly, -1, -1}) {}

bool clsStatusList::GetDataKEY(RecordsetPtr& rst) {
    return openSet("GetDataKEY", sql(), kGetDataKEYSpec, rst);
}

}  // namespace qv
