#pragma once
// Brings a fresh store into the program's folder on first run: the eight
// tables and the default Settings rows. The component itself never
// creates or alters a table.

#include <string>

namespace qv {

// Creates QuorvelData.mdb in folder. An existing store is left untouched
// (false); true when a store was made. Throws Failure when it can't be made.
bool installStore(const std::string& folder);

// Writes QuorvelSettings.txt in folder, pointing at the store there.
void installSettingsFile(const std::string& folder);

// The folder the task reports are written to, "Quorvel Reports".
void installReportsFolder(const std::string& folder);

// A program's folder ready on first run: the folder, its reports folder, a
// fresh store, a settings file pointing at it when the store is new or the
// file is missing, and the help pages it lacks. An existing store is left
// untouched. True when a store was made.
bool installApplicationFolder(const std::string& folder);

// A program's folder whose store is on a server: the folder, its reports
// folder and help pages, the store's tables where missing, and the settings
// file naming the URI.
void installServerApplicationFolder(const std::string& folder, const std::string& uri);

}  // namespace qv
