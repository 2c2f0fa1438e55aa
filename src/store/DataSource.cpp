#include "store/DataSource.h"

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/Ui.h"

namespace qv {

DataSource::DataSource(const char* className, OpenParams bindingSpec)
    : className_(className), bindingSpec_(bindingSpec) {}

DataSource::~DataSource() = default;

void DataSource::SetSQL(const Query& SQL) {
    sql_ = SQL;
}

bool DataSource::UpdateRST() {
    return trapped("UpdateRST", [&] { set().Requery(-1); });
}

int32_t DataSource::GetRowCount() {
    return trapped("GetRowCount", [&] { return set().RecordCount(); });
}

void DataSource::Class_GetDataMember(const std::string& DataMember, RecordsetPtr& Data) {
    trapped("Class_GetDataMember", [&] {
        if (DataMember != "Recordset") {
            Data = nullptr;
            return;
        }
        if (!rs_) rs_ = makeSet(sql_, {bindingSpec_.cursor, bindingSpec_.lock, -1, -1});
        Data = rs_;
    });
}

void DataSource::setTempErrReport(Reporter* reporter) {
    if (tempErrReport_) tempErrReport_->GotErrExitNow.disconnect(relayId_);
    tempErrReport_ = reporter;
    if (!reporter) return;
    relayId_ = reporter->GotErrExitNow.connect([weak = std::weak_ptr<DataSource*>(self_)] {
        if (auto alive = weak.lock()) (*alive)->GotErrExitNow();
    });
}

bool DataSource::openSet(const char* procedure, const Query& sql, const OpenParams& params,
                         RecordsetPtr& rst) {
    const bool opened = trapped(procedure, [&] { rst = makeSet(sql, params); });
    if (!opened) rst = nullptr;
    return opened;
}

RecordsetPtr DataSource::makeSet(const Query& sql, const OpenParams& params) {
    locateSessionStore();
    rs_ = std::make_shared<Recordset>();
    rs_->CursorLocation = adUseClient;
    rs_->CursorType = params.cursor;
    rs_->LockType = params.lock;
    rs_->Open(sql, g().ConnString, params.openCursor, params.openLock, adCmdText);
    return rs_;
}

Recordset& DataSource::set() {
    if (!rs_) throw Failure(err::ObjectRequired, "Object required: no result set is open");
    return *rs_;
}

void DataSource::pumpEvents() {
    if (ports().ui) ui().doEvents();
}

}  // namespace qv
