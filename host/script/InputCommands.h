#pragma once
// The scenario commands that act as the user on the dialog shown.
//
//   type TARGET TEXT        an editor, a date box (a date text) or sheet.KEY
//   click SHEET.KEY         a tool, a list entry or a drop-down entry
//   key enter|escape|f1|N   press a key
//   close                   the close box
//   answer yes|no|ok|cancel|retry|abort|ignore   the next message box
//   resize LEFT TOP WIDTH HEIGHT [normal|minimized|maximized]   (twips)
//   drag SPLITTER PANE HEIGHT   drag a splitter bar and let go

#include "script/ScriptCommands.h"

namespace qv {

class InputCommands {
public:
    static void addTo(ScriptCommands& table);

private:
    static void type(ScriptContext& c, const ScriptLine& l);
    static void click(ScriptContext& c, const ScriptLine& l);
    static void key(ScriptContext& c, const ScriptLine& l);
    static void close(ScriptContext& c, const ScriptLine& l);
    static void answer(ScriptContext& c, const ScriptLine& l);
    static void resize(ScriptContext& c, const ScriptLine& l);
    static void drag(ScriptContext& c, const ScriptLine& l);
};

}  // namespace qv
