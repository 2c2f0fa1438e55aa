#include "dialogs/existingtask/ExistingTaskKeywords.h"

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/SettingUp.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsKeywords.h"
#include "store/clsNewTask.h"
#include "toolkit/Failure.h"
#include "toolkit/Tool.h"
#include "toolkit/Translate.h"
#include "values/types/CNull.h"
#include "values/types/TextCase.h"

namespace qv {

namespace {

const char* const kNewProjectCaption = QV_N("New Project");

RecordsetPtr openLinks(clsNewTask& source, const std::string& taskGUID) {
    RecordsetPtr rs;
    source.SetSQL(queries::keywordLinksOfTask(taskGUID));
    if (!source.GetData(rs) || !rs) throw Failure(err::ObjectRequired, "Object required");
    return rs;
}

}  // namespace

ExistingTaskKeywords::ExistingTaskKeywords(frmExistingTask& f) : f_(f), add_(f) {}

ExistingTaskKeywords::~ExistingTaskKeywords() = default;

bool ExistingTaskKeywords::build() { return KeywordSheet::build(f_.controls().smtKeywords); }

// The ticks as loaded are what the save's merge starts from.
bool ExistingTaskKeywords::tickFromStore() {
    const bool ok = KeywordSheet::tickFromLinks(f_.controls().smtKeywords, g().CurrentTaskGUID);
    loadedLinks_ = tickedKeys();
    return ok;
}

std::unordered_set<std::string> ExistingTaskKeywords::tickedKeys() const {
    std::unordered_set<std::string> keys;
    for (const auto& t : f_.controls().smtKeywords.tools())
        if (t->checked() && KeywordSheet::isKeyword(*t)) keys.insert(TextCase::upper(t->key()));
    return keys;
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
    if (tool.key() != "PROJECT" || tool.text() != tr(kNewProjectCaption)) return false;
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

// Three ways: the links as loaded, the ticks as the user left them, the
// links as they stand now. The user's additions and removals apply to what
// stands, so another user's link changes stay; every row is written anew
// with the description as saved, and a link to a keyword that no longer
// exists goes. With nobody else writing this is the whole rewrite of the
// ticks, in the sheet's order.
void ExistingTaskKeywords::rewriteLinks() {
    const std::string guid = g().CurrentTaskGUID;
    const auto keywords = keywordCaptions(guid);
    clsNewTask source;
    RecordsetPtr rs = openLinks(source, guid);
    std::vector<std::string> standing;
    for (rs->MoveFirst(); !rs->EOF_(); rs->MoveNext()) {
        standing.push_back(CNull::NVLStr(rs->Fields("ktKEYGUID").value()));
        rs->Delete(adAffectCurrent);
    }
    rs->UpdateBatch(adAffectAllChapters);
    const auto mine = tickedKeys();
    std::unordered_set<std::string> stands;
    for (const auto& key : standing) stands.insert(TextCase::upper(key));
    std::unordered_set<std::string> written;
    // A keyword of the sheet stood when the sheet was built; a stored link's
    // keyword must stand now.
    const auto wanted = [&](const std::string& upperKey, bool onSheet) {
        return (onSheet || keywords.count(upperKey)) && !written.count(upperKey);
    };
    const std::string taskText = f_.controls().spellTask.text();
    for (const auto& t : f_.controls().smtKeywords.tools()) {
        const std::string key = TextCase::upper(t->key());
        // A tick the user made, or one that stands as it was loaded.
        if (!t->checked() || !wanted(key, true) || (loadedLinks_.count(key) && !stands.count(key))) continue;
        KeywordSheet::addLink(*rs, *t, taskText, guid);
        written.insert(key);
    }
    // Links another user made, and the user did not untick.
    for (const auto& stored : standing) {
        const std::string key = TextCase::upper(stored);
        if (!wanted(key, false) || (loadedLinks_.count(key) && !mine.count(key))) continue;
        const Tool link(nullptr, nullptr, ttCheck, stored, keywords.at(key));
        KeywordSheet::addLink(*rs, link, taskText, guid);
        written.insert(key);
    }
    rs->Close();
}

// The captions of the keywords the task's stored links name, by key (upper
// case): a link whose keyword is gone has none.
std::unordered_map<std::string, std::string> ExistingTaskKeywords::keywordCaptions(
    const std::string& taskGUID) {
    clsKeywords source;
    RecordsetPtr rs;
    source.SetSQL(queries::keywordsLinkedToTask(taskGUID));
    if (!source.GetData(rs) || !rs) throw Failure(err::ObjectRequired, "Object required");
    std::unordered_map<std::string, std::string> captions;
    for (; !rs->EOF_(); rs->MoveNext())
        captions.emplace(TextCase::upper(CNull::NVLStr(rs->Fields("keyGUIDID").value())),
                         CNull::NVLStr(rs->Fields("keyKeyword").value()));
    rs->Close();
    return captions;
}

void ExistingTaskKeywords::addCatalogLinks(const std::string& taskGUID) {
    clsNewTask source;
    RecordsetPtr rs = openLinks(source, taskGUID);
    KeywordSheet::addLinksFromBag(*rs, f_.controls().smtKeywords, f_.fields().record().KeywordList,
                                  f_.controls().spellTask.text(), taskGUID);
    rs->Close();
}

}  // namespace qv
