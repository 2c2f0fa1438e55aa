#include "HostFixture.h"

#include <stdexcept>

#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "kit/ToolCell.h"
#include "session/globals/SessionGlobals.h"
#include "view/HostSession.h"
#include "view/HostWindow.h"

namespace qv {

void HostFixture::SetUp() {
    ASSERT_TRUE(dir_.isValid());
    resetGlobals();
    installStore(folder());
    installSettingsFile(folder());
    installReportsFolder(folder());
    host_ = std::make_unique<HostApp>(folder(), false);
}

void HostFixture::TearDown() {
    StepRunner::closeAll();
    host_.reset();
    resetGlobals();
}

void HostFixture::exec(const std::string& sql) const { StoreFile(folder() + "/QuorvelData.mdb").exec(sql); }

std::string HostFixture::text(const std::string& sql) const {
    return StoreFile(folder() + "/QuorvelData.mdb").firstValue(sql).value_or("");
}

long long HostFixture::count(const std::string& sql) const {
    const std::string n = text(sql);
    return n.empty() ? -1 : std::stoll(n);
}

void HostFixture::openNewTask(StepRunner& steps) {
    // A stuck dialog ends the test instead of hanging it.
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    host().window().newTask();
}

void HostFixture::openTask(StepRunner& steps, const std::string& key) {
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    host().session().openTask(key);
}

ToolCell* HostFixture::cell(const QString& form, const QString& name) {
    QWidget* w = StepRunner::formWindow(form);
    return w ? w->findChild<ToolCell*>(name) : nullptr;
}

}  // namespace qv
