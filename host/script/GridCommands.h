#pragma once
// The scenario commands that reach a dialog's grid and tabs. Rows count
// from 1 as the user sees them; a column is named by its key (any case) or
// its header.
//
//   select ROW [ROW...]       select rows, the first named first
//   edit ROW COLUMN TEXT      edit a cell in place and commit the text
//   press ROW COLUMN          press a button cell (">>")
//   tab CAPTION|N             pick a tab of the first strip ("&Task Schedule" or 2)
//   tab NAME INDEX            pick a tab of a named strip, counted from 0
//   expect cell ROW COLUMN VALUE   the cell as shown
//   expect gridrows N              the grid's row count

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class Form;
class Grid;

class GridCommands {
public:
    static void addTo(ScriptCommands& table);

private:
    static void run(ScriptContext& c, const ScriptLine& line);
    [[nodiscard]] static std::string check(ScriptContext& c, const ScriptLine& line);
    [[nodiscard]] static Grid& gridOf(Form& form);
    [[nodiscard]] static int rowOf(const Grid& grid, const std::string& word);
    [[nodiscard]] static int columnOf(const Grid& grid, const std::string& word);
    static void pickTab(Form& form, const std::string& word);
    static void pickTab(Form& form, const std::string& strip, const std::string& index);
};

}  // namespace qv
