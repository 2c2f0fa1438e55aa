#include "store/NewRowSource.h"

namespace qv {

namespace {
constexpr OpenParams kGetDataSpec{adOpenDynamic, adLockBatchOptimistic, -1, adLockBatchOptimistic};
constexpr OpenParams kGetDataKeySpec{adOpenStatic, adLockBatchOptimistic, adOpenStatic, adLockBatchOptimistic};
}  // namespace

NewRowSource::NewRowSource(const char* className) : DataSource(className, kGetDataSpec) {}

bool NewRowSource::GetData(RecordsetPtr& rst) {
    return openSet("GetData", sql(), kGetDataSpec, rst);
}

bool NewRowSource::GetDataKEY(RecordsetPtr& rst) {
    return openSet("GetDataKEY", sqlKey_, kGetDataKeySpec, rst);
}

}  // namespace qv
