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
#include "toolkit/Translate.h"

namespace qv {

struct ExistingTaskControls {
    ExistingTaskControls();

    Sheet smtABOUT{"smtABOUT", tr("About")};
    Sheet smtKeywords{"smtKeywords", tr("Keywords")};
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
    TabStrip Tabs1{"Tabs1", {tr("&Checklist"), tr("&Task Schedule")}};
    Label lblTask{"lblTask", tr("Task Description")};
    Label lblNotes{"lblNotes", tr("Notes")};
    Label lblCk{"lblCk", tr("Checklist")};

private:
    void buildAbout();
    void buildReady();
    void buildTimes();
    void buildActions();
    void buildSchedule();
    void buildPanes();
};

}  // namespace qv
