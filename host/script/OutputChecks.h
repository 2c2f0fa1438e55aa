#pragma once
// The scenario expectations on what the component left behind: rows of the
// store, report files under "Quorvel Reports/" and the PDFs printed beside
// them.
//
//   expect row "SELECT ..." VALUE    the first column of the first row
//   expect rows "SELECT ..." N       the number of rows
//   expect report FILE TEXT          the report holds TEXT
//   expect no-report FILE            no such report was written
//   expect pdfpages FILE N           the PDF has N pages

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class OutputChecks {
public:
    static void addTo(ScriptCommands& table);

private:
    [[nodiscard]] static std::string row(ScriptContext& c, const ScriptLine& l, bool count);
    [[nodiscard]] static std::string report(ScriptContext& c, const ScriptLine& l, bool present);
    [[nodiscard]] static std::string pdfPages(ScriptContext& c, const ScriptLine& l);
};

}  // namespace qv
