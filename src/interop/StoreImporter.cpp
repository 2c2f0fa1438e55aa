#include "interop/StoreImporter.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "interop/IcalMapping.h"
#include "interop/NameRules.h"
#include "interop/StoreTables.h"
#include "interop/TaskSelection.h"
#include "store/SaveTransaction.h"
#include "values/types/CCreateGuid.h"

namespace qv {

namespace {

constexpr int32_t kNewProjectStatus = 4;
constexpr const char* kImportedSubject = "Imported";
constexpr double kMinutesPerDay = 1440.0;

using KeyMap = std::unordered_map<std::string, std::string>;

// Assigns the fields of wanted that differ from the current row; true when any did.
bool assignChanged(Recordset& rs, std::span<const ColumnSpec> specs, const Row& wanted) {
    bool changed = false;
    for (const auto& entry : specs) {
        auto it = wanted.find(entry.column);
        if (it == wanted.end()) continue;
        if (columns::same(entry.kind, rs.Fields(entry.column).value(), it->second)) continue;
        rs.Fields(entry.column) = it->second;
        changed = true;
    }
    return changed;
}

void addRow(Recordset& rs, std::span<const ColumnSpec> specs, const Row& row) {
    rs.AddNew();
    for (const auto& entry : specs)
        if (auto it = row.find(entry.column); it != row.end()) rs.Fields(entry.column) = it->second;
    rs.Update();
}

// Changes rows of the set that the file names by key, adds the others.
template <class Item, class Fields>
std::pair<int, int> mergeByKey(Recordset& rs, std::span<const ColumnSpec> specs, const char* keyColumn,
                               std::vector<Item>& items, Fields fieldsOf) {
    std::unordered_map<std::string, Item*> byKey;
    for (auto& item : items) byKey[textOf(fieldsOf(item), keyColumn)] = &item;
    int changed = 0, added = 0;
    if (rs.RecordCount() > 0) {
        rs.MoveFirst();
        for (; !rs.EOF_(); rs.MoveNext()) {
            auto it = byKey.find(rs.Fields(keyColumn).value().toText());
            if (it == byKey.end() || !it->second) continue;
            if (assignChanged(rs, specs, fieldsOf(*it->second))) {
                rs.Update();
                ++changed;
            }
            it->second = nullptr;  // a key that stands twice is changed once
        }
    }
    for (auto& item : items) {
        auto it = byKey.find(textOf(fieldsOf(item), keyColumn));
        if (it == byKey.end() || it->second != &item) continue;
        addRow(rs, specs, fieldsOf(item));
        it->second = nullptr;
        ++added;
    }
    rs.UpdateBatch(adAffectAllChapters);
    return {changed, added};
}

class Importer {
public:
    Importer(ImportSet set, double now) : set_(std::move(set)), now_(now) {}

    ImportCounts run() {
        SaveTransaction save;
        projects();
        keywords();
        tasks();
        links();
        appointments();
        save.commit();
        counts_.eventsLeftOut += set_.eventsWithoutTask;
        return counts_;
    }

private:
    void projects() {
        TableSet table(StoreTable::Projects);
        std::unordered_set<std::string> keys;
        std::unordered_map<std::string, std::string> byName;
        for (const auto& p : table.rows(columns::projects())) {
            keys.insert(textOf(p, "prjGUIDID"));
            byName.emplace(NameRules::projectMatchKey(textOf(p, "prjProject")), textOf(p, "prjGUIDID"));
        }
        for (auto& p : set_.projects) {
            const std::string key = textOf(p, "prjGUIDID");
            if (keys.contains(key)) continue;
            const std::string match = NameRules::projectMatchKey(textOf(p, "prjProject"));
            if (auto same = byName.find(match); same != byName.end()) {
                projectKeys_[key] = same->second;
                continue;
            }
            p["prjProject"] = Value(NameRules::trimmed(textOf(p, "prjProject")));
            if (!p.contains("prjSummary")) p["prjSummary"] = p["prjProject"];
            if (!p.contains("StatusLong")) p["StatusLong"] = Value(kNewProjectStatus);
            addRow(table.rs(), columns::projects(), p);
            byName.emplace(match, key);
            keys.insert(key);
            ++counts_.projectsAdded;
        }
        table.rs().UpdateBatch(adAffectAllChapters);
    }

    void keywords() {
        TableSet table(StoreTable::Keywords);
        std::map<std::pair<std::string, std::string>, std::string> bySubjectWord;
        for (const auto& k : table.rows(columns::keywords())) remember(k, bySubjectWord);
        for (auto& k : set_.keywords) {
            const std::string key = textOf(k, "keyGUIDID");
            if (keywordNames_.contains(key)) continue;
            const std::pair name{NameRules::trimmed(textOf(k, "keySubject")), NameRules::trimmed(textOf(k, "keyKeyword"))};
            if (auto same = bySubjectWord.find(name); same != bySubjectWord.end()) {
                keywordKeys_[key] = same->second;
                continue;
            }
            k["keySubject"] = Value(name.first);
            k["keyKeyword"] = Value(name.second);
            addKeyword(table, k, bySubjectWord);
        }
        // A foreign category is the stored keyword of that text, else a new
        // keyword of the subject "Imported".
        for (const auto& t : set_.tasks)
            for (const auto& word : t.categories) {
                if (byWord_.contains(word)) continue;
                Row k{{"keyGUIDID", Value(CCreateGuid::guid())}, {"keySubject", Value(kImportedSubject)},
                      {"keyKeyword", Value(word)}};
                addKeyword(table, k, bySubjectWord);
            }
        table.rs().UpdateBatch(adAffectAllChapters);
    }

    void remember(const Row& k, std::map<std::pair<std::string, std::string>, std::string>& bySubjectWord) {
        const std::string key = textOf(k, "keyGUIDID"), word = textOf(k, "keyKeyword");
        keywordNames_[key] = word;
        bySubjectWord.emplace(std::pair{textOf(k, "keySubject"), word}, key);
        byWord_.emplace(word, key);
    }

    void addKeyword(TableSet& table, const Row& k, std::map<std::pair<std::string, std::string>, std::string>& bySubjectWord) {
        addRow(table.rs(), columns::keywords(), k);
        remember(k, bySubjectWord);
        ++counts_.keywordsAdded;
    }

    void tasks() {
        std::unordered_set<std::string> withEvents;
        for (const auto& a : set_.appointments) withEvents.insert(textOf(a.fields, "taTaskGUIDID"));
        TableSet table(StoreTable::Tasks);
        std::unordered_set<std::string> stored;
        for (const auto& t : table.rows({columns::tasks().data(), 1})) stored.insert(textOf(t, "tskGUIDID"));
        for (auto& t : set_.tasks) {
            Row& f = t.fields;
            if (auto it = f.find("tskProjectKey"); it != f.end())
                if (auto mapped = projectKeys_.find(it->second.toText()); mapped != projectKeys_.end())
                    it->second = Value(mapped->second);
            const std::string key = textOf(f, "tskGUIDID");
            taskDescs_[key] = textOf(f, "tskDesc");
            if (t.foreign && !stored.contains(key)) withDefaults(f, withEvents.contains(key));
        }
        for (const auto& key : stored) knownTasks_.insert(key);
        for (const auto& t : set_.tasks) knownTasks_.insert(textOf(t.fields, "tskGUIDID"));
        auto [changed, added] = mergeByKey(table.rs(), columns::tasks(), "tskGUIDID", set_.tasks,
                                           [](ImportedTask& t) -> Row& { return t.fields; });
        counts_.tasksChanged = changed;
        counts_.tasksAdded = added;
    }

    // What New Task gives a task that the file says nothing about.
    void withDefaults(Row& f, bool hasEvents) const {
        auto give = [&f](const char* column, Value v) { f.emplace(column, std::move(v)); };
        give("tskStatus", Value(icalmap::kDefinedStatus));
        give("tskImp", Value(icalmap::kMediumImportance));
        give("tskDifficulty", Value(icalmap::kMediumImportance));
        give("tskTimeNeeded", Value(int32_t{0}));
        give("tskTimeScheduled", Value(int32_t{0}));
        give("tskTimeSpent", Value(int32_t{0}));
        give("tskCurrent", Value(false));
        give("tskHasSchedule", Value(hasEvents));
        give("tskHasNotes", Value(!textOf(f, "tskNotes").empty()));
        give("tskCreatedDate", Value(Date{now_}));
        give("tskLastMod", Value(Date{now_}));
        give("tskPossPoints", Value(int32_t{0}));
        give("tskCustSortQV", Value(int32_t{0}));
        give("tskCustSortCUR", Value(int32_t{0}));
        give("tskCustSortProj", Value(int32_t{0}));
        give("tskHasChecklist", Value(false));
        give("tskWasImported", Value(true));
    }

    // The keyword rows of a task the file holds keywords for are rewritten
    // when they differ from the file's.
    void links() {
        std::map<std::string, std::vector<std::string>> wanted;
        for (const auto& t : set_.tasks) {
            if (!t.holdsKeywords) continue;
            auto& keys = wanted[textOf(t.fields, "tskGUIDID")];
            for (const auto& k : t.keywordKeys) {
                auto mapped = keywordKeys_.find(k);
                keys.push_back(mapped == keywordKeys_.end() ? k : mapped->second);
            }
            for (const auto& word : t.categories) keys.push_back(byWord_.at(word));
            std::sort(keys.begin(), keys.end());
        }
        TableSet table(StoreTable::TaskKeywords);
        Recordset& rs = table.rs();
        std::map<std::string, std::vector<std::string>> stored;
        for (const auto& l : table.rows(columns::links()))
            if (wanted.contains(textOf(l, "ktTASKGUID"))) stored[textOf(l, "ktTASKGUID")].push_back(textOf(l, "ktKEYGUID"));
        std::set<std::string> rewrite;
        for (auto& [task, keys] : wanted) {
            auto& have = stored[task];
            std::sort(have.begin(), have.end());
            if (have != keys) rewrite.insert(task);
        }
        if (rewrite.empty()) return;
        if (rs.RecordCount() > 0) {
            rs.MoveFirst();
            for (; !rs.EOF_(); rs.MoveNext())
                if (rewrite.contains(rs.Fields("ktTASKGUID").value().toText())) {
                    rs.Delete(adAffectCurrent);
                    rs.Update();
                }
        }
        for (const auto& task : rewrite)
            for (const auto& key : wanted[task])
                addRow(rs, columns::links(),
                       {{"ktTASKGUID", Value(task)}, {"ktTask", Value(taskDescs_[task])}, {"ktKEYGUID", Value(key)},
                        {"ktKeyword", Value(keywordNames_[key])}});
        rs.UpdateBatch(adAffectAllChapters);
    }

    void appointments() {
        std::erase_if(set_.appointments, [&](const ImportedAppointment& a) {
            const bool orphan = !knownTasks_.contains(textOf(a.fields, "taTaskGUIDID"));
            counts_.eventsLeftOut += orphan;
            return orphan;
        });
        for (auto& a : set_.appointments) {
            Row& f = a.fields;
            if (auto it = f.find("taProjectGUIDID"); it != f.end())
                if (auto mapped = projectKeys_.find(it->second.toText()); mapped != projectKeys_.end())
                    it->second = Value(mapped->second);
            if (a.foreign) appointmentDefaults(f);
        }
        TableSet table(StoreTable::Appointments);
        auto [changed, added] = mergeByKey(table.rs(), columns::appointments(), "taGUIDID", set_.appointments,
                                           [](ImportedAppointment& a) -> Row& { return a.fields; });
        counts_.appointmentsChanged = changed;
        counts_.appointmentsAdded = added;
    }

    // A foreign event's length and state; its task's description.
    void appointmentDefaults(Row& f) const {
        if (!f.contains("taTaskDesc")) f["taTaskDesc"] = Value(taskDescs_.count(textOf(f, "taTaskGUIDID")) ? taskDescs_.at(textOf(f, "taTaskGUIDID")) : std::string());
        if (f.contains("taStartTime") && !f.contains("taEndTime")) f["taEndTime"] = f["taStartTime"];
        if (f.contains("taStartTime")) {
            const double length = f["taEndTime"].toDate().serial - f["taStartTime"].toDate().serial;
            f.emplace("taDuration", Value(static_cast<int32_t>(std::lround(length * kMinutesPerDay))));
        }
        f.emplace("taWasWorked", Value(false));
        f.emplace("taTimeWorked", Value(int32_t{0}));
    }

    ImportSet set_;
    double now_;
    ImportCounts counts_;
    KeyMap projectKeys_, keywordKeys_;
    std::unordered_map<std::string, std::string> keywordNames_, byWord_, taskDescs_;
    std::unordered_set<std::string> knownTasks_;
};

}  // namespace

ImportCounts StoreImporter::write(ImportSet set, double now) {
    return Importer(std::move(set), now).run();
}

}  // namespace qv
