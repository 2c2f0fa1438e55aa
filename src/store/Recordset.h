#pragma once
// A client-side result set over the SQLite store, offering what the old data
// layer offered. Rows are read on first use (RecordCount alone counts
// without loading them, and asks the store once until they are read);
// changes are written back by the row's own identity (rowid) and only for
// the fields that were assigned a value other than the one read. The write
// checks that each such field still holds the value read (optimistic
// concurrency): another user's change to it is a WriteConflict, never
// silently overwritten, and a row deleted meanwhile is a failure.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Export.h"
#include "store/Query.h"
#include "values/types/Value.h"

namespace qv {

class Connection;
class Recordset;

// The platform's numbers.
enum CursorLocation : int32_t { adUseServer = 2, adUseClient = 3 };
enum CursorType : int32_t { adOpenUnspecified = -1, adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockType : int32_t { adLockUnspecified = -1, adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3, adLockBatchOptimistic = 4 };
enum ObjectState : int32_t { adStateClosed = 0, adStateOpen = 1 };
enum AffectEnum : int32_t { adAffectCurrent = 1, adAffectGroup = 2, adAffectAll = 3, adAffectAllChapters = 4 };
enum CommandType : int32_t { adCmdText = 1 };

// One field of the current row.
class QV_EXPORT Field {
public:
    Field(Recordset& rs, int index) : rs_(&rs), index_(index) {}
    [[nodiscard]] const std::string& Name() const;
    [[nodiscard]] Value value() const;
    void setValue(const Value& v);
    Field& operator=(const Value& v) {
        setValue(v);
        return *this;
    }
    operator Value() const { return value(); }

private:
    Recordset* rs_;
    int index_;
};

class QV_EXPORT Recordset {
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    // Properties before opening.
    int32_t CursorLocation = adUseClient;
    int32_t CursorType = adOpenForwardOnly;
    int32_t LockType = adLockReadOnly;

    // Opens with a query text in the store's dialect (with the values of
    // its ? placeholders, bound in order) and the connection text. cursor
    // and lock of -1 leave the properties as they stand.
    void Open(const Query& query, const std::string& connString, int32_t cursor = -1, int32_t lock = -1,
              int32_t options = adCmdText);
    void Close();
    [[nodiscard]] int32_t State() const;

    [[nodiscard]] int32_t RecordCount();
    [[nodiscard]] bool EOF_();
    [[nodiscard]] bool BOF_();
    void MoveFirst();
    void MoveNext();

    // Fields by name (case-blind, as the engine compares names). Throws
    // Failure for an unknown name.
    [[nodiscard]] Field Fields(const std::string& name);
    [[nodiscard]] int32_t FieldCount();
    [[nodiscard]] Field FieldAt(int index);

    void AddNew();
    void Update();
    void UpdateBatch(int32_t affect = adAffectAllChapters);
    void CancelUpdate();
    void Delete(int32_t affect = adAffectCurrent);
    void Requery(int32_t options = -1);

    // The field is written without the check: a stamp or a value worked
    // out from others, which every save sets anew.
    void WriteUnchecked(const std::string& name);
    // Reads the current row again and takes other users' changes to the
    // fields this set leaves as read; returns their names. A field this
    // set changes that another user changed too throws WriteConflict.
    std::vector<std::string> MergeStored();
    // After a WriteConflict: the conflicting fields count as read with the
    // other user's values, so the next write puts this set's over them.
    void OverwriteStored();

    [[nodiscard]] const std::string& Source() const;

private:
    friend class Field;
    friend class RecordWriteBack;
    struct Impl;
    std::unique_ptr<Impl> d_;
};

using RecordsetPtr = std::shared_ptr<Recordset>;

}  // namespace qv
