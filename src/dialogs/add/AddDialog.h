#pragma once
// What the Add Project and Add Keyword dialogs have in common: the action
// sheet with its help, add and close tools, add by the tool or by Enter,
// Escape to leave, the "created." box, and the relay of GotErrExitNow.
// Each dialog names its own differences in the hooks below.

#include <cstdint>
#include <string>

#include "toolkit/ReporterRelay.h"
#include "toolkit/Event.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"

namespace qv {

class AddDialog : public Form {
public:
    // Stores the print setting handed to the help pop-up.
    bool SetTaskPrintSetting(const std::string& str);

    // Relayed from the error reporter: the session must end.
    Event<> GotErrExitNow;

protected:
    // The tool and the Enter key add alike in the keyword dialog, not in
    // the project dialog.
    enum class AddTrigger { Tool, EnterKey };

    struct Shape {
        const char* addKey;    // the tool that adds
        const char* closeKey;  // the tool that closes
        int32_t helpTopic;
        const char* created;  // the "created." box, %1 the name (translated when shown)
        const char* title;    // after the program's title: " - Add Project" (translated when shown)
    };

    AddDialog(std::string name, Shape shape);

    void Form_KeyDown(int32_t keyCode, int32_t shift) override;

    virtual bool validateNew() = 0;
    virtual bool createNew() = 0;
    // The text named in the "created." box, as it stands.
    [[nodiscard]] virtual std::string addedName() const = 0;
    // What follows a written row: emptying fields, the owner's event.
    virtual void afterAdd(AddTrigger how) = 0;
    // The close tool asks first where the dialog has something to lose.
    virtual bool mayClose() { return true; }

    // An information box titled with the program's title.
    static void info(const std::string& text);
    // The text without leading and trailing spaces.
    [[nodiscard]] static std::string trimSpaces(const std::string& text);

    Sheet smtAction{"smtAction"};

private:
    void smtAction_Click(Tool& t);
    void addNew(AddTrigger how);
    void openHelpPop();

    Shape shape_;
    std::string TaskPrintSetting;
    ReporterRelay relay_{GotErrExitNow};
};

}  // namespace qv
