#include "dialogs/shared/ProjectSheet.h"

#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsVLProjectsList.h"
#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"
#include "values/types/TaskUtil.h"

namespace qv {

namespace {


RecordsetPtr openProjects(clsVLProjectsList& list) {
    RecordsetPtr rs;
    list.SetSQL(queries::projectList());
    if (!list.GetData(rs)) return nullptr;
    return rs;
}

// Both arrays erased and sized to the row count.
void resizeArrays(int32_t rows) {
    auto& s = g();
    s.ProjectKeys.assign(static_cast<size_t>(rows), {});
    s.ProjectNames.assign(static_cast<size_t>(rows), {});
}

// The names array is written at 0 on every row while the keys advance:
// kept as the lists have always been.
void storeRow(size_t n, std::string key, const std::string& name) {
    auto& s = g();
    if (n < s.ProjectKeys.size()) s.ProjectKeys[n] = std::move(key);
    if (!s.ProjectNames.empty()) s.ProjectNames[0] = ZapAmps(name);
}

}  // namespace

bool ProjectSheet::fillForSetup(Sheet& sheet) {
    clsVLProjectsList list;
    auto rs = openProjects(list);
    if (!rs) return false;
    if (rs->RecordCount() > 0) {
        resizeArrays(rs->RecordCount());
        sheet.reserve(static_cast<std::size_t>(rs->RecordCount()) + 2);
    }
    const Field keyField = rs->Fields("prjGUIDID");
    const Field nameField = rs->Fields("prjProject");
    for (size_t n = 0; !rs->EOF_(); ++n, rs->MoveNext()) {
        std::string key = keyField.value().toText();
        const std::string name = nameField.value().toText();
        // "Archived" takes a slot and retags (or disables) the tool before it.
        if (name != kArchived) sheet.add(ttOption, key, ZapAmps(name));
        Tool* last = sheet.lastAdded();
        if (last && key == g().MOP) last->setEnabled(false);
        if (last) last->setTag(key);
        storeRow(n, std::move(key), name);
    }
    rs->Close();
    addClosingTools(sheet);
    return true;
}

bool ProjectSheet::refill(Sheet& sheet, const std::string& newName) {
    clsVLProjectsList list;
    auto rs = openProjects(list);
    if (!rs) return false;
    if (rs->RecordCount() > 0) {
        sheet.removeAll();
        resizeArrays(rs->RecordCount());
        for (size_t n = 0; !rs->EOF_(); ++n, rs->MoveNext()) {
            const std::string key = rs->Fields("prjGUIDID").value().toText();
            const std::string name = rs->Fields("prjProject").value().toText();
            Tool& option = sheet.add(ttOption, key, ZapAmps(name));
            storeRow(n, key, name);
            option.setTag(key);
            if (!newName.empty() && ZapAmps(newName) == g().ProjectNames[0]) option.setChecked(true);
        }
    }
    rs->Close();
    addClosingTools(sheet);
    return true;
}

bool ProjectSheet::fillList(Tool& list, bool disableMop) {
    clsVLProjectsList source;
    auto rs = openProjects(source);
    if (!rs) return false;
    list.clearItems();
    if (rs->RecordCount() > 0) resizeArrays(rs->RecordCount());
    const Field keyField = rs->Fields("prjGUIDID");
    const Field nameField = rs->Fields("prjProject");
    for (size_t n = 0; !rs->EOF_(); ++n, rs->MoveNext()) {
        std::string key = keyField.value().toText();
        const std::string name = nameField.value().toText();
        Tool& entry = list.addItem(ttOption, "PRJ-" + key, ZapAmps(name));
        entry.setTag(key);
        if (disableMop && key == g().MOP) entry.setEnabled(false);
        storeRow(n, std::move(key), name);
    }
    rs->Close();
    list.addItem(ttDropSeparator, {}, {});
    list.addItem(ttButton, kNewProjectKey, tr("New Project"));
    return true;
}

// A sheet left as it was gets a second button, which can carry no key.
void ProjectSheet::addClosingTools(Sheet& sheet) {
    sheet.add(ttSeparator);
    sheet.add(ttButton, sheet.hasKey(kNewProjectKey) ? std::string() : kNewProjectKey, tr("New Project"));
}

}  // namespace qv
