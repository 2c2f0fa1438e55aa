#include "dialogs/shared/CustomSortNumbers.h"

#include <limits>

#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"
#include "store/clsStatusList.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {

template <bool ByKey, class Source>
int32_t countRows(Source& source, const Query& query) {
    RecordsetPtr rs;
    source.SetSQL(query);
    bool opened = false;
    if constexpr (ByKey) opened = source.GetDataKEY(rs);
    else opened = source.GetData(rs);
    if (!opened || !rs) throw Failure(err::ObjectRequired, "Object required");
    const int32_t count = rs->RecordCount();
    rs->Close();
    return count;
}

}  // namespace

int32_t CustomSortNumbers::countPlusOne(const Query& query) const {
    int32_t count = 0;
    if (counter_ == Counter::StatusList) {
        clsStatusList list;
        count = countRows<true>(list, query);
    } else {
        clsNewTask task;
        count = countRows<false>(task, query);
    }
    if (count == std::numeric_limits<int32_t>::max()) throw Failure(err::Overflow, "Overflow");
    return count + 1;
}

int32_t CustomSortNumbers::utilCustSortQV() {
    if (qv_ < 1) qv_ = countPlusOne(queries::allTaskKeys());
    return qv_;
}

int32_t CustomSortNumbers::utilCustCur() {
    if (cur_ < 1) cur_ = countPlusOne(queries::currentTaskKeys());
    return cur_;
}

int32_t CustomSortNumbers::utilCustProj(const std::string& projectKey) {
    if (proj_ < 1)
        proj_ = countPlusOne(queries::taskKeysOfProject(projectKey));
    return proj_;
}

}  // namespace qv
