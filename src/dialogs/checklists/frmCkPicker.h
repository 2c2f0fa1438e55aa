#pragma once
// Picks a checklist for a task, or "-NEW-" for a new one, or "-NONE-" to
// unlink. The owner hides it and clears its reference on either event.

#include <cstdint>
#include <string>

#include "toolkit/Event.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"

namespace qv {

class frmCkPicker : public Form {
public:
    frmCkPicker();

    // Fills smtList: the two special rows, a heading, then every checklist by name.
    bool LoadPicker();

    Event<> Cancel;
    Event<const std::string&> CKPicked;

protected:
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;

private:
    void smtList_Click(Tool& t);
    void smtAction_Click(Tool& t);
    // Nothing is raised until a row has been clicked.
    void pickStored();

    Sheet smtList{"smtList"};
    Sheet smtAction{"smtAction"};
    TextEditor txDesc{"txDesc"};
    std::string PickedKey;
};

}  // namespace qv
