#include "view/DemoDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>

#include "kit/FormWindow.h"
#include "kit/ToolCell.h"
#include "toolkit/Form.h"
#include "view/HostApp.h"
#include "view/HostWindow.h"

namespace qv {

namespace {
constexpr int kTickMs = 40;
constexpr int kWaitMs = 8000;
constexpr int kWholeDemoMs = 120000;
}  // namespace

DemoDriver::DemoDriver(HostApp& app, QString shotsDir, bool allSizes)
    : app_(app), dir_(std::move(shotsDir)), allSizes_(allSizes) {
    ticker_.setInterval(kTickMs);
    connect(&ticker_, &QTimer::timeout, this, &DemoDriver::tick);
    plan();
}

QWidget* DemoDriver::formWindow(const QString& form) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == form && w->isVisible() && qobject_cast<FormWindow*>(w)) return w;
    return nullptr;
}

void DemoDriver::typeInto(QWidget* w, const QString& text) {
    w->setFocus();
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &release);
    }
}

void DemoDriver::waitFor(const QString& form, const QString& name, std::function<void(QWidget*)> act, int settleMs) {
    auto seen = std::make_shared<QElapsedTimer>();
    steps_.push_back({name,
                      [form, seen, settleMs] {
                          if (!formWindow(form)) return false;
                          if (!seen->isValid()) seen->start();
                          return seen->elapsed() >= settleMs;
                      },
                      [form, act] {
                          if (QWidget* w = formWindow(form)) act(w);
                      },
                      kWaitMs});
}

void DemoDriver::clickTool(const QString& form, const QString& cell) {
    QWidget* w = formWindow(form);
    auto* c = w ? w->findChild<ToolCell*>(cell) : nullptr;
    if (auto* b = c ? qobject_cast<QAbstractButton*>(c->control()) : nullptr) b->click();
}

void DemoDriver::closeForm(const QString& form) {
    if (QWidget* w = formWindow(form)) w->close();
}

void DemoDriver::plan() {
    auto now = [] { return true; };
    steps_.push_back({"host", now, [this] { shoot(&app_.window(), "host", allSizes_); }, kWaitMs});
    steps_.push_back({"open New Task", now, [this] { app_.window().newTask(); }, kWaitMs});
    // The start timer puts the defaults in after half a second.
    waitFor("frmTask3", "New Task empty", [this](QWidget* w) { shoot(w, "new-task-empty", allSizes_); }, 900);
    waitFor("frmTask3", "fill New Task", [](QWidget* w) {
        if (auto* desc = w->findChild<QTextEdit*>("spellTask")) typeInto(desc, "Write the quarterly report");
        if (auto* date = w->findChild<QDateEdit*>("ctDeadline")) date->setDate(QDate::currentDate().addDays(-10));
        if (auto* cell = w->findChild<ToolCell*>("smtOther.DEADTIME"))
            if (auto* edit = cell->findChild<QLineEdit*>()) typeInto(edit, "17:00");
    });
    waitFor("frmTask3", "New Task filled", [this](QWidget* w) { shoot(w, "new-task-filled", allSizes_); });
    steps_.push_back({"open Add Project", now, [this] { clickTool("frmTask3", "smtProj.kNEWPROJECT"); }, kWaitMs});
    waitFor("frmAddProject", "Add Project", [this](QWidget* w) {
        shoot(w, "add-project", allSizes_);
        closeForm("frmAddProject");
    });
    steps_.push_back({"open Add Keyword", [] { return !formWindow("frmAddProject"); },
                      [this] { clickTool("frmTask3", "smtKeywords.kNEWKEYWORD"); }, kWaitMs});
    waitFor("frmAddKeyword", "Add Keyword", [this](QWidget* w) {
        shoot(w, "add-keyword", allSizes_);
        closeForm("frmAddKeyword");
    });
    steps_.push_back({"open checklist picker", [] { return !formWindow("frmAddKeyword"); },
                      [this] { clickTool("frmTask3", "smtCKActions.PICK"); }, kWaitMs});
    waitFor("frmCkPicker", "checklist picker", [this](QWidget* w) {
        shoot(w, "checklist-picker", allSizes_);
        closeForm("frmCkPicker");
    });
    steps_.push_back({"add the task", [] { return !formWindow("frmCkPicker") && formWindow("frmTask3"); },
                      [this] { clickTool("frmTask3", "smtActions.QV2"); }, kWaitMs});
    waitFor("frmTask3", "task added", [this](QWidget* w) { shoot(w, "new-task-added", false); });
    steps_.push_back({"close New Task", now, [this] { clickTool("frmTask3", "smtActions.DONE"); }, kWaitMs});
    steps_.push_back({"host after", [] { return !formWindow("frmTask3"); },
                      [this] { shoot(&app_.window(), "host-after", false); }, kWaitMs});
}

int DemoDriver::run() {
    QDir().mkpath(dir_);
    app_.window().show();
    total_.start();
    stepClock_.start();
    ticker_.start();
    QApplication::exec();
    return 0;
}

void DemoDriver::tick() {
    if (done_) return;
    answerMessageBox();
    if (total_.elapsed() > kWholeDemoMs || next_ >= steps_.size()) {
        finish();
        return;
    }
    Step& step = steps_[next_];
    const bool timedOut = stepClock_.elapsed() > step.timeoutMs;
    if (!timedOut && !step.ready()) return;
    // Move on first: the step's action may open a modal window and tick inside it.
    ++next_;
    stepClock_.restart();
    if (timedOut) {
        qInfo("demo: skipped \"%s\": its window did not come", qPrintable(step.name));
        return;
    }
    // A timer does not fire again while its own slot runs: the action, which
    // may wait in a modal window, runs from a one-shot of its own.
    QTimer::singleShot(0, this, step.act);
}

void DemoDriver::answerMessageBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    saveGrab(box, QStringLiteral("message-%1").arg(++messages_));
    // Yes goes on with the demonstration; else the box's own default.
    QAbstractButton* b = box->button(QMessageBox::Yes);
    if (!b) b = box->defaultButton();
    if (!b && !box->buttons().isEmpty()) b = box->buttons().first();
    if (b) QTimer::singleShot(0, b, &QAbstractButton::click);
}

void DemoDriver::finish() {
    done_ = true;
    ticker_.stop();
    // Whatever is still open closes now, so every modal wait returns.
    for (const auto& form : Form::openForms()) form->unload();
    QTimer::singleShot(0, qApp, [] { QApplication::exit(0); });
}

void DemoDriver::saveGrab(QWidget* w, const QString& name) {
    const QString path = QDir(dir_).filePath(name + ".png");
    if (w->grab().save(path)) shots_ << path;
}

void DemoDriver::shoot(QWidget* w, const QString& name, bool sizes) {
    QApplication::processEvents();
    saveGrab(w, name);
    if (!sizes) return;
    const QSize opened = w->size();
    const QSize smallest = w->minimumSize().isEmpty() ? w->minimumSizeHint() : w->minimumSize();
    for (const auto& [suffix, size] : {std::pair{QString("-min"), smallest}, std::pair{QString("-large"), opened * 1.3}}) {
        w->resize(size);
        QApplication::processEvents();
        saveGrab(w, name + suffix);
    }
    w->resize(opened);
    QApplication::processEvents();
}

}  // namespace qv
