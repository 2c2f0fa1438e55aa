#pragma once
// What every data-source class shares: a query text, one client-side result
// set kept by the class and handed to the caller by reference, and the trap
// that reports a failure with the class name as module.

#include <cstdint>
#include <memory>
#include <string>

#include "Export.h"
#include "store/ErrorPath.h"
#include "store/Recordset.h"
#include "toolkit/Event.h"

namespace qv {

class Reporter;

// Cursor and lock set before opening, and the arguments of the open call
// (-1 leaves the property standing).
struct QV_EXPORT OpenParams {
    int32_t cursor;
    int32_t lock;
    int32_t openCursor;
    int32_t openLock;
};

class QV_EXPORT DataSource {
public:
    virtual ~DataSource();
    DataSource(const DataSource&) = delete;
    DataSource& operator=(const DataSource&) = delete;

    // A text, or a text with the values of its ? placeholders.
    void SetSQL(const Query& SQL);
    // Requery of the class's set.
    bool UpdateRST();
    // The set's record count; the set must be open.
    int32_t GetRowCount();
    // Data binding: only the member "Recordset" (exact case) gives a set.
    void Class_GetDataMember(const std::string& DataMember, RecordsetPtr& Data);

    [[nodiscard]] Reporter* tempErrReport() const { return tempErrReport_; }
    // The reporter whose GotErrExitNow this class relays as its own.
    void setTempErrReport(Reporter* reporter);

    // Relayed from the reporter: the session must end.
    Event<> GotErrExitNow;

protected:
    DataSource(const char* className, OpenParams bindingSpec);

    // Makes a new set with params, opens it with sql and hands it to rst.
    bool openSet(const char* procedure, const Query& sql, const OpenParams& params, RecordsetPtr& rst);
    // Runs body under this class's trap.
    template <class F>
    auto trapped(const char* procedure, F&& body) {
        return trap(className_, procedure, std::forward<F>(body));
    }
    // The set, or an "object required" failure when none was opened.
    Recordset& set();
    // After a write: one pass of the event pump.
    static void pumpEvents();

    [[nodiscard]] const Query& sql() const { return sql_; }

private:
    RecordsetPtr makeSet(const Query& sql, const OpenParams& params);

    const char* className_;
    OpenParams bindingSpec_;
    Query sql_;
    RecordsetPtr rs_;
    Reporter* tempErrReport_ = nullptr;
    std::size_t relayId_ = 0;
    // The relay holds only a weak hold on this object, so a reporter that
    // outlives the class never calls into a destroyed one.
    std::shared_ptr<DataSource*> self_ = std::make_shared<DataSource*>(this);
};

}  // namespace qv
