#include "interop/TaskSelection.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "interop/InteropError.h"
#include "interop/StoreTables.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {

using Keys = std::unordered_set<std::string>;

bool inScope(const ExportScope& scope, const Row& task) {
    switch (scope.kind) {
    case ExportScope::Kind::All: return true;
    case ExportScope::Kind::Task: return textOf(task, "tskGUIDID") == scope.key;
    case ExportScope::Kind::Project: return textOf(task, "tskProjectKey") == scope.key;
    case ExportScope::Kind::Current: {
        auto it = task.find("tskCurrent");
        return it != task.end() && it->second.toBool();
    }
    }
    return false;
}

std::vector<Row> keep(std::vector<Row> rows, const char* column, const Keys& keys) {
    std::erase_if(rows, [&](const Row& r) { return !keys.contains(textOf(r, column)); });
    return rows;
}

// The rows of each task, by its key.
std::unordered_map<std::string, std::vector<Row>> byTask(const std::vector<Row>& rows, const char* column) {
    std::unordered_map<std::string, std::vector<Row>> of;
    for (const auto& r : rows) of[textOf(r, column)].push_back(r);
    return of;
}

}  // namespace

std::vector<TaskSelection> TaskSelection::perTask() const {
    std::vector<TaskSelection> parts;
    auto linksOf = byTask(links, "ktTASKGUID");
    auto appointmentsOf = byTask(appointments, "taTaskGUIDID");
    for (const auto& task : tasks) {
        TaskSelection one;
        const std::string key = textOf(task, "tskGUIDID");
        one.tasks.push_back(task);
        one.links = std::move(linksOf[key]);
        one.appointments = std::move(appointmentsOf[key]);
        Keys projectKeys{textOf(task, "tskProjectKey")}, keywordKeys;
        for (const auto& a : one.appointments) projectKeys.insert(textOf(a, "taProjectGUIDID"));
        for (const auto& l : one.links) keywordKeys.insert(textOf(l, "ktKEYGUID"));
        one.projects = keep(projects, "prjGUIDID", projectKeys);
        one.keywords = keep(keywords, "keyGUIDID", keywordKeys);
        parts.push_back(std::move(one));
    }
    return parts;
}

TaskSelection TaskSelection::read(const ExportScope& scope) {
    TaskSelection s;
    for (auto& task : TableSet(StoreTable::Tasks).rows(columns::tasks()))
        if (inScope(scope, task)) s.tasks.push_back(std::move(task));
    s.projects = TableSet(StoreTable::Projects).rows(columns::projects());
    if (scope.kind == ExportScope::Kind::Task && s.tasks.empty())
        throw InteropError(fill(tr("There is no task with the key %1 to export."), {scope.key}));
    if (scope.kind == ExportScope::Kind::Project &&
        std::none_of(s.projects.begin(), s.projects.end(),
                     [&](const Row& p) { return textOf(p, "prjGUIDID") == scope.key; }))
        throw InteropError(fill(tr("There is no project with the key %1 to export."), {scope.key}));

    Keys taskKeys;
    for (const auto& t : s.tasks) taskKeys.insert(textOf(t, "tskGUIDID"));
    s.links = keep(TableSet(StoreTable::TaskKeywords).rows(columns::links()), "ktTASKGUID", taskKeys);
    s.appointments = keep(TableSet(StoreTable::Appointments).rows(columns::appointments()), "taTaskGUIDID", taskKeys);
    s.keywords = TableSet(StoreTable::Keywords).rows(columns::keywords());
    if (scope.kind == ExportScope::Kind::All) return s;

    Keys projectKeys, keywordKeys;
    for (const auto& t : s.tasks) projectKeys.insert(textOf(t, "tskProjectKey"));
    for (const auto& a : s.appointments) projectKeys.insert(textOf(a, "taProjectGUIDID"));
    for (const auto& l : s.links) keywordKeys.insert(textOf(l, "ktKEYGUID"));
    s.projects = keep(std::move(s.projects), "prjGUIDID", projectKeys);
    s.keywords = keep(std::move(s.keywords), "keyGUIDID", keywordKeys);
    return s;
}

}  // namespace qv
