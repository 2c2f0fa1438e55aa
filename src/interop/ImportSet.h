#pragma once
// What a calendar file holds for the store, read and checked before
// anything is written: the rows it names, only with the columns it holds.

#include <string>
#include <vector>

#include "interop/StoreColumns.h"

namespace qv {

struct ImportedTask {
    Row fields;             // tskGUIDID always
    bool foreign = false;   // written by another program: no X-QUORVEL property
    bool holdsKeywords = false;
    std::vector<std::string> keywordKeys;   // X-QUORVEL-KEYWORD, ours
    std::vector<std::string> categories;    // CATEGORIES of a foreign to-do
};

struct ImportedAppointment {
    Row fields;  // taGUIDID and taTaskGUIDID always
    bool foreign = false;
};

struct ImportSet {
    std::vector<Row> projects;  // prjGUIDID always
    std::vector<Row> keywords;  // keyGUIDID always
    std::vector<ImportedTask> tasks;
    std::vector<ImportedAppointment> appointments;
    int eventsWithoutTask = 0;  // VEVENTs related to no to-do: left out
};

// A store key for a calendar UID: the UID itself when it is a key (36
// characters), else a key made from it, the same on every import.
std::string storeKeyOf(const std::string& uid);

}  // namespace qv
