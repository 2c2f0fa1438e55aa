#pragma once
// The scenario commands about drafts, and a real wait.
//
//   draft where                        prints the folder where drafts are kept
//   sleep MS                           waits MS milliseconds of real time (a
//                                      process another one kills meanwhile)
//   expect draft MODE [KEY] kept|none  a draft of that dialog mode and task
//                                      key is kept (or not) for the session's store

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class DraftCommands {
public:
    static void addTo(ScriptCommands& table);

private:
    static void where(ScriptContext& c, const ScriptLine& line);
    static void sleep(ScriptContext& c, const ScriptLine& line);
    [[nodiscard]] static std::string check(ScriptContext& c, const ScriptLine& line);
};

}  // namespace qv
