// A host holding a write transaction on the store file: every dialog still
// opens and closes, since an open that changes nothing writes nothing.

#include <sqlite3.h>

#include <functional>
#include <string>
#include <vector>

#include "dialogs/appointment/AppointmentFixture.h"
#include "toolkit/Form.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
class OpenUnderWriteLock : public AppointmentFixture {
protected:
    void TearDown() override {
        if (host_) {
            sqlite3_exec(host_, "ROLLBACK", nullptr, nullptr, nullptr);
            sqlite3_close(host_);
        }
        AppointmentFixture::TearDown();
    }
    // The host's own connection, holding the write lock from here on.
    void hostHoldsTheWriteLock() {
        ASSERT_EQ(sqlite3_open_v2(storePath().c_str(), &host_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(host_, "BEGIN IMMEDIATE; UPDATE TASKS SET tskTimeScheduled=tskTimeScheduled",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
    }
    sqlite3* host_ = nullptr;
};
}  // namespace

TEST_F(OpenUnderWriteLock, EveryDialogOpensAndClosesWithoutWaiting) {
    QV_FILE_STORE_ONLY();
    seed();
    // A first open and close of each leaves its layout file and geometry as
    // they will stay.
    struct Open {
        const char* name;
        std::function<void()> run;
        bool asksToCancel;
    };
    const std::vector<Open> opens = {
        {"New Task", [this] { NewTaskFixture::open(0); }, true},
        {"Existing Task", [this] { NewTaskFixture::open(1, kTask); }, false},
        {"Save to Task Catalog", [this] { NewTaskFixture::open(5, kTask); }, false},
        {"Task Appointment", [this] { open(); }, false},
    };
    for (int pass = 0; pass < 2; ++pass) {
        if (pass == 1) hostHoldsTheWriteLock();
        for (const Open& o : opens) {
            SCOPED_TRACE(std::string(o.name) + (pass ? " under the lock" : ""));
            scriptedUi().clearMessages();
            fireTimer();
            if (o.asksToCancel) then([this] { answer(vbYes); });
            then([] { Form::openForms().back()->keyDown(vbKeyEscape); });
            o.run();
            EXPECT_EQ(scriptedUi().messages().size(), o.asksToCancel ? 1U : 0U)
                << scriptedUi().messages().back().text;
            EXPECT_TRUE(reporter().faults().empty()) << reporter().faults().front().description;
        }
    }
}

}  // namespace qv
