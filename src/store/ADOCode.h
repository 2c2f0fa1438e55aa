#pragma once
// Where the store is: the settings file beside the program names the
// database file; ADOTest reads it, repairs it and sets the connection texts.

#include <string>

namespace qv {

inline constexpr const char* kStoreFileName = "QuorvelData.mdb";
inline constexpr const char* kSettingsFileName = "QuorvelSettings.txt";

// Locates the store and sets ConnString, ConnStringShaped and DBLocation.
// False after two lost passes or when the settings file can't be handled.
bool ADOTest();
// The store path that the text of a settings file names (lines ended by
// CR LF or by LF alike).
std::string dbLocationIn(const std::string& settingsText);
// Before a data request: locates the store when ConnString is still empty.
// Throws Failure when it can't be located, naming the file looked for, and
// at once, without touching the store, when the error path has ended the
// session (no further dialogue about the settings file, no wait on a lock).
void locateSessionStore();
// Overwrites the settings file with DBLocation.
void saveTheLoc();
// Forms ConnStringShaped for the store at path.
void SetConnStringSHAPED(const std::string& path);

// A file in a folder: no second separator when the folder ends in "/".
std::string pathInFolder(const std::string& folder, const std::string& name);
// Writes the five tagged lines that point at dbPath; throws Failure.
void writeSettingsFile(const std::string& folder, const std::string& dbPath);

}  // namespace qv
