#pragma once
// The scenario expectations on what the host and the user were shown: the
// host events, the message boxes, the dialog on top and the help pop-up.
// Events and messages are matched in order: each expectation looks on from
// the last one matched.
//
//   expect event NAME [ARG...]   / expect no-event NAME
//   expect message TEXT [title=TITLE] [style=N]   / expect no-message [TEXT]
//   expect form NAME|none
//   expect help TOPIC TITLE      / expect help-page FILE ("" for an empty pane)

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class EventChecks {
public:
    static void addTo(ScriptCommands& table);

private:
    [[nodiscard]] static std::string event(ScriptContext& c, const ScriptLine& l, bool present);
    [[nodiscard]] static std::string message(ScriptContext& c, const ScriptLine& l);
    [[nodiscard]] static std::string noMessage(ScriptContext& c, const ScriptLine& l);
    [[nodiscard]] static std::string form(ScriptContext& c, const ScriptLine& l);
};

}  // namespace qv
