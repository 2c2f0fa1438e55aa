#pragma once
// The named controls of the New Task dialog, with the tools its template
// carries before any setup.

#include "toolkit/DateBox.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Timer.h"
#include "toolkit/Translate.h"

namespace qv {

// Panes of the splitter, by index.
enum NewTaskPane : int32_t {
    paneStatus = 0, paneProject, paneTask, paneChecklist, paneNotes, paneKeywords,
    paneNeeded, paneImp, paneDiff, panePic, paneActions,
};

struct NewTaskControls {
    NewTaskControls();

    Sheet smtActions{"smtActions"};
    Sheet smtOther{"smtOther", tr("Status")};
    Sheet smtProj{"smtProj", tr("Project")};
    Sheet smtReady{"smtReady"};
    Sheet smtCKActions{"smtCKActions"};
    Sheet smtKeywords{"smtKeywords", tr("Keywords")};
    Sheet smtTimeNeeded{"smtTimeNeeded", tr("Time Needed")};
    Sheet smtImp{"smtImp", tr("Importance")};
    Sheet smtDiff{"smtDiff", tr("Difficulty")};
    TextEditor spellTask{"spellTask"};
    TextEditor spellCK{"spellCK"};
    TextEditor SpellNotes{"SpellNotes"};
    DateBox ctDeadline{"ctDeadline"};
    DateBox ctTheDateDone{"ctTheDateDone"};
    Timer startTimer{"startTimer"};
    Splitter splitTask{"splitTask"};
    Label lblTaskSaved{"lblTaskSaved"};
    Label lblTask{"lblTask", tr("Task Description")};
    Label lblCk{"lblCk", tr("Checklist")};
    Label lblNotes{"lblNotes", tr("Notes")};

private:
    void buildActions();
    void buildOther();
    void buildReady();
    void buildPanes();
};

}  // namespace qv
