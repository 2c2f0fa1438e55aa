#include "HostFixture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSplitterHandle>

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

void HostFixture::exec(const std::string& sql) const {
    StoreFile(folder() + "/QuorvelData.mdb").exec(sql);
}

std::string HostFixture::text(const std::string& sql) const {
    return StoreFile(folder() + "/QuorvelData.mdb").firstValue(sql).value_or("");
}

long long HostFixture::count(const std::string& sql) const {
    const std::string n = text(sql);
    return n.empty() ? -1 : std::stoll(n);
}

QString HostFixture::log() const {
    return host().window().findChild<QPlainTextEdit*>("txtLog")->toPlainText();
}

void HostFixture::run(StepRunner& steps, const std::function<void()>& open) {
    // A stuck dialog ends the test instead of hanging it.
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    open();
}

void HostFixture::openNewTask(StepRunner& steps) {
    run(steps, [this] { host().window().newTask(); });
}

void HostFixture::openTask(StepRunner& steps, const std::string& key) {
    run(steps, [this, &key] { host().session().openTask(key); });
}

::testing::AssertionResult HostFixture::ranAll(const StepRunner& steps) {
    if (steps.skipped().isEmpty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "skipped: " << steps.skipped().join(", ").toStdString()
                                         << "; messages: " << steps.messages().join(" | ").toStdString();
}

ToolCell* HostFixture::cell(const QString& form, const QString& name) {
    QWidget* w = StepRunner::formWindow(form);
    return w ? w->findChild<ToolCell*>(name) : nullptr;
}

QAbstractButton* HostFixture::button(const QString& form, const QString& name) {
    ToolCell* c = cell(form, name);
    return c ? qobject_cast<QAbstractButton*>(c->control()) : nullptr;
}

void HostFixture::drag(QSplitterHandle* handle, int dy) {
    const QPoint from = handle->rect().center();
    const QPoint to = from + QPoint(0, dy);
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, QPointF(to), handle->mapToGlobal(QPointF(to)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(handle, &move);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
}

}  // namespace qv
