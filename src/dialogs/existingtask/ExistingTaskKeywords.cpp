#include "dialogs/existingtask/ExistingTaskKeywords.h"

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/SettingUp.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/clsNewTask.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {

const char* const kNewProjectCaption = "New Project";

RecordsetPtr openLinks(clsNewTask& source, const std::string& taskGUID) {
    RecordsetPtr rs;
    source.SetSQL("SELECT * from TaskKeywords WHERE ktTASKGUID= " + sqlLiteral(taskGUID));
    if (!source.GetData(rs) || !rs) throw Failure(err::ObjectRequired, "Object required");
    return rs;
}

}  // namespace

ExistingTaskKeywords::ExistingTaskKeywords(frmExistingTask& f) : f_(f), add_(f) {}

ExistingTaskKeywords::~ExistingTaskKeywords() = default;

bool ExistingTaskKeywords::build() { return KeywordSheet::build(f_.controls().smtKeywords); }

bool ExistingTaskKeywords::tickFromStore() {
    return KeywordSheet::tickFromLinks(f_.controls().smtKeywords, g().CurrentTaskGUID);
}

// The check runs before the count, so HasKeywords lags one click behind.
void ExistingTaskKeywords::smtKeywords_Click(Tool& tool) {
    if (g().SettingUp) return;
    auto& fields = f_.fields();
    if (tool.type() == ttCheck) {
        fields.KeywordCount = 0;
        f_.ValidateTask();
        fields.IsDirty = true;
        fields.KeywordCount = KeywordSheet::countTicked(f_.controls().smtKeywords);
    } else if (tool.key() == KeywordSheet::kNewKeywordKey) {
        openAddKeyword();
    }
}

bool ExistingTaskKeywords::projectChanged(Tool& tool) {
    if (tool.key() != "PROJECT" || tool.text() != kNewProjectCaption) return false;
    openAddProject();
    f_.ValidateTask();
    f_.fields().IsDirty = true;
    return true;
}

// Ticks made since the last save go: the ticks come from the store alone.
void ExistingTaskKeywords::fNewKeyword_KeywordAdded() {
    if (!build() || !tickFromStore()) return;
    f_.KeywordAdded();
}

void ExistingTaskKeywords::fNewProject_ProjectAdded(const std::string& name) {
    Tool& list = f_.controls().smtABOUT.tool("PROJECT");
    if (!ProjectSheet::fillList(list, false)) return;
    if (!name.empty() && list.items().size() > 2) {
        SettingUp raised;
        list.setText(name);
    }
    f_.ProjectAdded(name);
}

void ExistingTaskKeywords::openAddKeyword() {
    add_.openAddKeyword([this] { fNewKeyword_KeywordAdded(); }, [this] { f_.GotErrExitNow(); });
}

void ExistingTaskKeywords::openAddProject() {
    add_.openAddProject([this](const std::string& name) { fNewProject_ProjectAdded(name); },
                        [this] { f_.GotErrExitNow(); });
}

void ExistingTaskKeywords::rewriteLinks() {
    const std::string guid = g().CurrentTaskGUID;
    clsNewTask source;
    RecordsetPtr rs = openLinks(source, guid);
    for (rs->MoveFirst(); !rs->EOF_(); rs->MoveNext()) rs->Delete(adAffectCurrent);
    rs->UpdateBatch(adAffectAllChapters);
    const std::string taskText = f_.controls().spellTask.text();
    for (const auto& t : f_.controls().smtKeywords.tools())
        if (t->checked()) KeywordSheet::addLink(*rs, *t, taskText, guid);
    rs->Close();
}

void ExistingTaskKeywords::addCatalogLinks(const std::string& taskGUID) {
    clsNewTask source;
    RecordsetPtr rs = openLinks(source, taskGUID);
    KeywordSheet::addLinksFromBag(*rs, f_.controls().smtKeywords, f_.fields().record().KeywordList,
                                  f_.controls().spellTask.text(), taskGUID);
    rs->Close();
}

}  // namespace qv
