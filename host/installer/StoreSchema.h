#pragma once
// The tables of a fresh store, as the data classes and dialogs name them.

#include <string>
#include <vector>

namespace qv {

// The CREATE statements of the eight tables and their indexes, in order.
const std::vector<std::string>& storeSchema();

}  // namespace qv
