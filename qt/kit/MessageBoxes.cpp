#include "kit/MessageBoxes.h"

#include <utility>
#include <vector>

#include <QMessageBox>
#include <QPushButton>

#include "toolkit/Ui.h"

namespace qv {

namespace {

using Buttons = std::vector<std::pair<QMessageBox::StandardButton, int32_t>>;

Buttons buttonsOf(int32_t style) {
    switch (style & 0x0F) {
    case vbOKCancel: return {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}};
    case vbAbortRetryIgnore:
        return {{QMessageBox::Abort, vbAbort}, {QMessageBox::Retry, vbRetry}, {QMessageBox::Ignore, vbIgnore}};
    case vbYesNoCancel: return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}};
    case vbYesNo: return {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}};
    case vbRetryCancel: return {{QMessageBox::Retry, vbRetry}, {QMessageBox::Cancel, vbCancel}};
    default: return {{QMessageBox::Ok, vbOK}};
    }
}

QMessageBox::Icon iconOf(int32_t style) {
    switch (style & 0x70) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// The answer a closed box gives: Cancel where there is one, else the only button.
int32_t escapeAnswer(const Buttons& buttons) {
    for (const auto& [button, answer] : buttons)
        if (answer == vbCancel) return vbCancel;
    return buttons.size() == 1 ? buttons.front().second : vbNo;
}

}  // namespace

int32_t MessageBoxes::ask(QWidget* parent, const std::string& text, int32_t style, const std::string& title) {
    QMessageBox box(iconOf(style), QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::NoButton, parent);
    box.setObjectName("qvMessageBox");
    const Buttons buttons = buttonsOf(style);
    for (const auto& [button, answer] : buttons)
        box.addButton(button)->setObjectName(QStringLiteral("answer%1").arg(answer));
    const std::size_t defaultIndex = (style & vbDefaultButton2) && buttons.size() > 1 ? 1 : 0;
    box.setDefaultButton(buttons[defaultIndex].first);
    box.exec();
    for (const auto& [button, answer] : buttons)
        if (box.clickedButton() == box.button(button)) return answer;
    return escapeAnswer(buttons);
}

}  // namespace qv
