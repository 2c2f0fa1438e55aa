#pragma once
// Scenario commands that let two quorvel-script processes meet, as two
// users at one store would: one signals a step by making a file, the other
// waits until the file is there (real time, not the script's clock).
//
//   signal FILE               make FILE (empty) now
//   wait-for FILE [SECONDS]   wait until FILE exists; fail after SECONDS (default 60)

#include "script/ScriptCommands.h"

namespace qv {

class SyncCommands {
public:
    static void addTo(ScriptCommands& table);

private:
    // Throws std::invalid_argument for a bad line and std::runtime_error
    // when the wait ran out.
    static void run(ScriptContext& c, const ScriptLine& line);
};

}  // namespace qv
