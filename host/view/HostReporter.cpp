#include "view/HostReporter.h"

#include <QApplication>
#include <QMessageBox>

#include "kit/QtText.h"
#include "session/globals/SessionGlobals.h"

namespace qv {

bool HostReporter::report(const FaultReport& fault) {
    if (log_) log_(qtr("Fault: %1").arg(QString::fromStdString(format(fault))).toStdString());
    if (interactive_) {
        const QString text =
            qtr("%1\n\n%2.%3, error %4")
                .arg(QString::fromStdString(fault.description), QString::fromStdString(fault.module),
                     QString::fromStdString(fault.procedure))
                .arg(fault.number);
        QMessageBox::critical(QApplication::activeModalWidget(), kProgramTitle, text);
    }
    return ConsoleReporter::report(fault);
}

}  // namespace qv
