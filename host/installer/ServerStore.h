#pragma once
// A team store on a PostgreSQL server: the eight tables of the file store
// with the same names, each with a hidden identity column qv_rowid for
// writing rows back, text sorted as on the file store (names without regard
// to case, keys as bytes), dates as timestamps to the millisecond, yes/no as
// 0/1. Nothing that stands is dropped or changed.

#include <string>
#include <vector>

namespace qv {

// The statements of the server schema, made from the file store's.
std::vector<std::string> serverSchema();

// Creates what is missing of the store in the database the URI names, and
// the default Settings rows when that table has none. Throws Failure with
// the server's name and reason when it can't.
void installServerStore(const std::string& uri);

// A fresh, empty schema on the server of baseUri and the URI that works in
// it (for tests and throw-away stores); the store is installed there.
std::string makeScratchServerStore(const std::string& baseUri);

// Removes a schema made by makeScratchServerStore (quietly).
void dropScratchServerStore(const std::string& uri);

}  // namespace qv
