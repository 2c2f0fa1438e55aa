#pragma once
// Writes an ImportSet into the store in one save: tasks by key (a stored
// key is updated in the fields the file holds, and only where they differ),
// their keyword links, their appointments, and the projects and keywords
// they name, made as Add Project and Add Keyword make them.

#include "interop/ImportSet.h"

namespace qv {

struct ImportCounts {
    int tasksAdded = 0;
    int tasksChanged = 0;
    int appointmentsAdded = 0;
    int appointmentsChanged = 0;
    int projectsAdded = 0;
    int keywordsAdded = 0;
    int eventsLeftOut = 0;
};

class StoreImporter {
public:
    // Throws Failure when the store refuses; the save is then undone.
    [[nodiscard]] static ImportCounts write(ImportSet set, double now);
};

}  // namespace qv
