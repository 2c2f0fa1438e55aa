#pragma once
// The questions the dialogs ask the store, by name: each gives its query
// text in the store's old dialect and the values it binds. Every text the
// dialogs open lives here; a key, a name or a date goes in as a bound value,
// never as part of the text.

#include <string>
#include <vector>

#include "store/Query.h"

namespace qv::queries {

// --- tasks ---------------------------------------------------------------
Query taskByKey(const std::string& key);
// An updatable empty set of TASKS for adding a row (importance never is 6).
Query newTaskRow();
Query allTaskKeys();
Query currentTaskKeys();
Query taskKeysOfProject(const std::string& projectKey);

// --- the Task Catalog ----------------------------------------------------
Query catalogItemByKey(const std::string& key);
Query newCatalogRow();
// The time history of a catalog item: its key and its five last spent times.
Query catalogTimeHistory(const std::string& key);

// --- appointments --------------------------------------------------------
Query appointmentByKey(const std::string& key);
Query appointmentsOfTask(const std::string& taskKey);
// The schedule grid's columns, latest first.
Query scheduleOfTask(const std::string& taskKey);
// QVTOTAL: the minutes scheduled for a task.
Query scheduledMinutesOfTask(const std::string& taskKey);

// --- keywords ------------------------------------------------------------
Query keywordsBySubject();
Query keywordsByName();
Query keywordsForAdding();
Query keywordSubjects();
Query keywordLinksOfTask(const std::string& taskKey);
// The keywords a task's links name (a link to a keyword that is gone finds none).
Query keywordsLinkedToTask(const std::string& taskKey);

// --- projects ------------------------------------------------------------
Query projectList();
Query projectsForAdding();

// --- checklists ----------------------------------------------------------
Query checklistByKey(const std::string& key);
// The same row for a Task Catalog item (its key, name and content).
Query checklistOfCatalogItem(const std::string& key);
Query checklistRow(const std::string& key);
Query checklistPickerList();

// --- settings ------------------------------------------------------------
Query settingsSection(const std::string& section);
// The rows of several sections in one read, section by section, each in
// display order (the order of the section index, as one section's read).
Query settingsSections(const std::vector<std::string>& sections);

}  // namespace qv::queries
