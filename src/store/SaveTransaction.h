#pragma once
// One user-level save as one transaction: whole or absent, even when the
// process dies midway. Begins on construction (taking the store's write
// lock, waiting up to the busy timeout, so a save never stops halfway for
// want of it); rolls back in the destructor unless commit() ran. Saves
// nest: an inner SaveTransaction (and each Recordset's own UpdateBatch)
// becomes a savepoint of the outer one, and only the outermost commit
// reaches the disk.
//
//     SaveTransaction save;
//     ...AddNew, Update, UpdateBatch...
//     save.commit();                 // then tell the host
//
// Where a failure midway is meant to leave the first part behind (a task
// row stays when its keyword rows fail), keepSoFar() marks that part: a
// failure after it commits exactly what came before the mark. A killed
// process commits nothing. The error path settles every open save this way
// before it tells the user, so no lock is held while a message is shown.

#include <memory>
#include <string>

namespace qv {

class StoreBackend;

class SaveTransaction {
public:
    // On the session's store (located first when ConnString is still empty).
    SaveTransaction();
    // On a given connection.
    explicit SaveTransaction(std::shared_ptr<StoreBackend> conn);
    ~SaveTransaction();
    SaveTransaction(const SaveTransaction&) = delete;
    SaveTransaction& operator=(const SaveTransaction&) = delete;

    // Makes the save stand (for a nested one: part of the outer save).
    // Throws Failure when the store refuses; the save is then undone.
    void commit();
    // What was written so far stays if the save fails from here on.
    void keepSoFar();
    [[nodiscard]] bool committed() const { return done_; }
    // True for the outermost save of its connection.
    [[nodiscard]] bool outermost() const { return outer_; }

    // Ends every open save as failed, innermost first (the error path).
    static void settleAll() noexcept;

private:
    void begin();
    void fail() noexcept;
    void run(const std::string& sql) noexcept;

    std::shared_ptr<StoreBackend> conn_;
    std::string savepoint_;
    std::string keep_;
    bool outer_ = false;
    bool done_ = false;
};

}  // namespace qv
