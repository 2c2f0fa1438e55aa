#pragma once
// The named controls of the Task Appointment dialog, with the tools its
// template carries before any setup.

#include "toolkit/DateBox.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Timer.h"
#include "toolkit/Translate.h"

namespace qv {

// Panes of the splitter, by index: the description and the times above,
// the tabs, the completed box, and the action bar.
enum AppointmentPane : int32_t { paneTAUpper = 0, paneTATimes, paneTATabs, paneTAReady, paneTAActions };

// The pages of Tabs1, by index.
enum AppointmentTab : int32_t { tabChecklist = 0, tabNotes = 1, tabAbout = 2 };

struct AppointmentControls {
    AppointmentControls();

    Sheet smtTimes{"smtTimes", tr("Time Information")};
    Sheet smtReady{"smtReady"};
    Sheet smtABOUT{"smtABOUT", tr("About this Task:")};
    Sheet smtActions{"smtActions"};
    Sheet smtCKActions{"smtCKActions"};
    TabStrip Tabs1{"Tabs1", {tr("&Checklist"), tr("Notes"), tr("About")}};
    TextEditor spellTask{"spellTask"};
    TextEditor SpellNotes{"SpellNotes"};
    TextEditor spellCK{"spellCK"};
    DateBox ctTADate{"ctTADate"};
    Timer Timer1{"Timer1"};
    Splitter splitTAS{"splitTAS"};
    Label lblTask{"lblTask", tr("Task Description")};
    Label lblCk{"lblCk", tr("Checklist")};
    Label lblNotes{"lblNotes", tr("Notes")};

private:
    void buildTimes();
    void buildReady();
    void buildAbout();
    void buildActions();
    void buildChecklistActions();
    void buildPanes();
};

}  // namespace qv
