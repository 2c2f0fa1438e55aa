#pragma once
// The scenario commands about drafts, and a real wait.
//
//   draft where                 prints the folder where drafts are kept
//   draft MODE [KEY] kept|none  a draft of that dialog mode and task key is
//                               kept (or not) for the session's store
//   sleep MS                    waits MS milliseconds of real time (a
//                               process another one kills meanwhile)

#include <ostream>
#include <string>

namespace qv {

struct ScriptLine;

class DraftCommands {
public:
    [[nodiscard]] static bool handles(const std::string& command);
    // Throws std::invalid_argument for a bad line, std::runtime_error for
    // an expectation that does not hold.
    static void run(const ScriptLine& line, std::ostream& out);
};

}  // namespace qv
