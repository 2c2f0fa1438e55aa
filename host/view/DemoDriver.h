#pragma once
// A short demonstration that runs by itself: it opens a New Task, fills it
// with a past deadline, opens Add Project, Add Keyword and the checklist
// picker, adds the task and closes; every window it meets is saved as a
// PNG, at the size it opened with and, when asked, at its minimum and a
// larger size. Each step waits for its window with a time-out, so missing
// dialogs are skipped, never waited on for ever.

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

class QWidget;

namespace qv {

class HostApp;

class DemoDriver : public QObject {
    Q_OBJECT
public:
    DemoDriver(HostApp& app, QString shotsDir, bool allSizes);

    // Runs the demonstration to its end; returns the process' exit code.
    int run();
    [[nodiscard]] const QStringList& shots() const { return shots_; }

private:
    struct Step {
        QString name;
        std::function<bool()> ready;
        std::function<void()> act;
        int timeoutMs;
    };

    void plan();
    void tick();
    void answerMessageBox();
    void finish();
    void shoot(QWidget* w, const QString& name, bool sizes);
    void saveGrab(QWidget* w, const QString& name);
    // Waits for the window of a form, settled for a moment.
    void waitFor(const QString& form, const QString& name, std::function<void(QWidget*)> act, int settleMs = 300);
    void clickTool(const QString& form, const QString& cell);
    void closeForm(const QString& form);
    [[nodiscard]] static QWidget* formWindow(const QString& form);
    static void typeInto(QWidget* w, const QString& text);

    HostApp& app_;
    QString dir_;
    bool allSizes_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    QElapsedTimer stepClock_;
    QElapsedTimer total_;
    QTimer ticker_;
    QStringList shots_;
    int messages_ = 0;
    bool done_ = false;
};

}  // namespace qv
