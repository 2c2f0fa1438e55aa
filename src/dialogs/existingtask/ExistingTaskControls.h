#pragma once
// The named controls of the Existing Task dialog, with the tools its
// template carries before any setup. The captions of smtABOUT keep their
// trailing tab: the sheet lines its values up on it.

#include "toolkit/DateBox.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Timer.h"

namespace qv {

struct ExistingTaskControls {
    ExistingTaskControls();

    Sheet smtABOUT{"smtABOUT", "About"};
    Sheet smtKeywords{"smtKeywords", "Keywords"};
    Sheet smtReady{"smtReady"};
    Sheet smtActions{"smtActions"};
    Sheet smtCKActions{"smtCKActions"};
    Sheet smtSkedBtns{"smtSkedBtns"};
    Sheet smtSkedTimes{"smtSkedTimes"};
    Sheet smtTimes{"smtTimes"};
    TextEditor spellTask{"spellTask"};
    TextEditor SpellNotes{"SpellNotes"};
    TextEditor spellCK{"spellCK"};
    DateBox ctDeadline{"ctDeadline"};
    DateBox ctTheDateDone{"ctTheDateDone"};
    Timer Timer1{"Timer1"};
    Timer Timer2{"Timer2"};
    Splitter splitTask{"splitTask"};
    TabStrip Tabs1{"Tabs1", {"&Checklist", "&Task Schedule"}};
    Label lblTask{"lblTask", "Task Description"};
    Label lblNotes{"lblNotes", "Notes"};
    Label lblCk{"lblCk", "Checklist"};

private:
    void buildAbout();
    void buildReady();
    void buildTimes();
    void buildActions();
    void buildSchedule();
    void buildPanes();
};

}  // namespace qv
