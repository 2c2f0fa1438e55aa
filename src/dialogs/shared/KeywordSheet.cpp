#include "dialogs/shared/KeywordSheet.h"

#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsKeywords.h"
#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"
#include "values/types/TextCase.h"

namespace qv {

bool KeywordSheet::build(Sheet& sheet) {
    clsKeywords keywords;
    RecordsetPtr rs;
    keywords.SetSQL(queries::keywordsBySubject());
    if (!keywords.GetData(rs)) return false;
    sheet.removeAll();
    // A field reads the current row: found by name once, not once per row.
    const Field subjectField = rs->Fields("keySubject");
    const Field keyField = rs->Fields("keyGUIDID");
    const Field keywordField = rs->Fields("keyKeyword");
    std::string subject;
    // Each keyword and, at most, a heading for it.
    if (!rs->EOF_()) sheet.reserve(2 * static_cast<std::size_t>(rs->RecordCount()) + 2);
    while (!rs->EOF_()) {
        std::string rowSubject = subjectField.value().toText();
        if (rowSubject != subject) {
            subject = std::move(rowSubject);
            sheet.add(ttHeading, subject, subject);
        }
        sheet.add(ttCheck, keyField.value().toText(), keywordField.value().toText());
        rs->MoveNext();
    }
    rs->Close();
    sheet.add(ttSeparator);
    sheet.add(ttButton, kNewKeywordKey, tr("Add Keyword"));
    return true;
}

// The keys are unique on the sheet, so each item is appended as the bag's
// WriteItem would append it, without its search for an earlier copy.
std::string KeywordSheet::bagText(const Sheet& sheet) {
    std::string bag;
    for (const auto& t : sheet.tools()) {
        if (t->type() == ttSeparator || t->type() == ttHeading || t->key() == kNewKeywordKey) continue;
        bag += TextCase::upper(t->key()) + "=" + (t->checked() ? "True" : "False") + "\t";
    }
    return bag;
}

std::unordered_set<std::string> KeywordSheet::tickedIn(const std::string& bag) {
    std::unordered_set<std::string> keys;
    for (std::size_t start = 0; start < bag.size();) {
        std::size_t end = bag.find('\t', start);
        if (end == std::string::npos) end = bag.size();
        const std::size_t eq = bag.find('=', start);
        if (eq < end && bag.compare(eq + 1, end - eq - 1, "True") == 0) keys.insert(bag.substr(start, eq - start));
        start = end + 1;
    }
    return keys;
}

int32_t KeywordSheet::countTicked(const Sheet& sheet) {
    int32_t count = 0;
    for (const auto& t : sheet.tools())
        if (t->checked()) ++count;
    return count;
}

bool KeywordSheet::isKeyword(const Tool& tool) {
    return tool.type() != ttHeading && tool.type() != ttButton && !tool.key().empty();
}

// One pass over the links, then one look-up per link: a sheet of
// thousands of keywords is not walked once per link.
bool KeywordSheet::tickFromLinks(Sheet& sheet, const std::string& taskGUID) {
    clsKeywords keywords;
    RecordsetPtr rs;
    keywords.SetSQL(queries::keywordLinksOfTask(taskGUID));
    if (!keywords.GetData(rs)) return false;
    std::unordered_set<std::string> linked;
    for (; !rs->EOF_(); rs->MoveNext()) linked.insert(rs->Fields("ktKEYGUID").value().toText());
    rs->Close();
    for (const auto& key : linked)
        if (Tool* t = sheet.find(key)) t->setChecked(true);
    return true;
}

void KeywordSheet::addLink(Recordset& rs, const Tool& keyword, const std::string& taskText,
                           const std::string& taskGUID) {
    rs.AddNew();
    rs.Fields("ktKeyword") = Value(keyword.caption());
    rs.Fields("ktTask") = Value(taskText + "");
    rs.Fields("ktKEYGUID") = Value(keyword.key());
    rs.Fields("ktTASKGUID") = Value(taskGUID);
    rs.Update();
    rs.UpdateBatch(adAffectAllChapters);
}

void KeywordSheet::addLinksFromBag(Recordset& rs, const Sheet& sheet, const std::string& bag,
                                   const std::string& taskText, const std::string& taskGUID) {
    const auto ticked = tickedIn(bag);
    for (const auto& t : sheet.tools())
        if (isKeyword(*t) && ticked.count(TextCase::upper(t->key()))) addLink(rs, *t, taskText, taskGUID);
}

}  // namespace qv
