#pragma once
// A short demonstration that runs by itself: it opens a New Task, fills it
// with a past deadline and files it in the Task Catalog, opens Add
// Project, Add Keyword, the checklist picker and editor, Page Setup, the
// print preview and a print, creates a task from the catalog item (its past
// deadline red) and adds it, then schedules an appointment for that task and
// works it to completion, opens that task with twenty appointments in the
// Existing Task dialog; on the way it opens each dialog's help, previews
// and prints a help page, and shows the help index and the tour from the
// host. Every window it meets
// is saved as a PNG, at the size it opened with and, when asked, at its
// minimum and a larger size. Missing dialogs are skipped after a time-out.

#include <functional>

#include <QObject>
#include <QStringList>

#include "view/StepRunner.h"

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
    void planNewTask();
    void planSubDialogs();
    void planPrinting();
    void planFiling();
    void planFromCatalog();
    void planAppointment();
    void planHelp(const QString& form, const QString& helpCell, const QString& name, bool printing);
    void planHostHelp();
    [[nodiscard]] static QWidget* previewWindow();
    void shootOver(QWidget* top, QWidget* under, const QString& name);
    void planExistingTask();
    // Gives the task twenty appointments, the last days' and the next.
    void scheduleTwenty(const std::string& taskKey) const;
    // Waits for a form's window, settled, then saves it.
    void shootWhenShown(const QString& form, const QString& name, bool sizes, int settleMs = 300);
    void openAndShoot(const QString& cell, const QString& form, const QString& name,
                      std::function<void(QWidget*)> use = {}, const QString& helpCell = {});
    void shoot(QWidget* w, const QString& name, bool sizes);
    void saveGrab(QWidget* w, const QString& name);

    HostApp& app_;
    QString dir_;
    bool allSizes_;
    StepRunner steps_;
    QStringList shots_;
    int messages_ = 0;
};

}  // namespace qv
