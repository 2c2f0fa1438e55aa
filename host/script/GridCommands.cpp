#include "script/GridCommands.h"

#include <stdexcept>
#include <vector>

#include "script/ScriptContext.h"
#include "script/ScriptLine.h"
#include "toolkit/Form.h"
#include "toolkit/Grid.h"
#include "toolkit/TabStrip.h"
#include "values/types/Convert.h"

namespace qv {

void GridCommands::addTo(ScriptCommands& table) {
    for (const char* command : {"select", "edit", "press", "tab"}) table.commands.insert({command, &run});
    for (const char* what : {"cell", "gridrows"}) table.checks.insert({what, &check});
}

Grid& GridCommands::gridOf(Form& form) {
    if (form.grids().empty()) throw std::invalid_argument(form.name() + " has no grid");
    return *form.grids().begin()->second;
}

int GridCommands::rowOf(const Grid& grid, const std::string& word) {
    const auto n = tryToLong(word);
    if (!n || *n < 1 || *n > grid.rowCount())
        throw std::invalid_argument("no row " + word + " in " + grid.name() + " (" + std::to_string(grid.rowCount()) +
                                    " rows)");
    return *n - 1;
}

int GridCommands::columnOf(const Grid& grid, const std::string& word) {
    if (const int c = grid.columnOf(word); c >= 0) return c;
    for (int c = 0; c < grid.columnCount(); ++c)
        if (grid.column(c).caption == word) return c;
    throw std::invalid_argument(grid.name() + " has no column " + word);
}

void GridCommands::pickTab(Form& form, const std::string& word) {
    if (form.tabStrips().empty()) throw std::invalid_argument(form.name() + " has no tabs");
    TabStrip& tabs = *form.tabStrips().begin()->second;
    for (int t = 0; t < tabs.count(); ++t)
        if (tabs.captions()[static_cast<size_t>(t)] == word) return tabs.userSwitch(t);
    const auto n = tryToLong(word);
    if (!n || *n < 1 || *n > tabs.count()) throw std::invalid_argument(tabs.name() + " has no tab " + word);
    tabs.userSwitch(*n - 1);
}

void GridCommands::pickTab(Form& form, const std::string& strip, const std::string& index) {
    TabStrip* tabs = form.tabStrip(strip);
    if (!tabs) throw std::invalid_argument("no tab strip " + strip);
    tabs->userSwitch(static_cast<int32_t>(toLong(index)));
}

void GridCommands::run(ScriptContext& c, const ScriptLine& l) {
    Form& form = c.activeForm();
    const std::string command = l.lowerWord(0);
    if (command == "tab") return l.words.size() > 2 ? pickTab(form, l.word(1), l.word(2)) : pickTab(form, l.word(1));
    Grid& grid = gridOf(form);
    if (command == "select") {
        std::vector<int32_t> rows;
        for (std::size_t i = 1; i < l.words.size(); ++i) rows.push_back(rowOf(grid, l.word(i)));
        grid.selectRows(rows);
    } else if (command == "edit") {
        grid.beginEdit(rowOf(grid, l.word(1)), columnOf(grid, l.word(2)));
        grid.commitEdit(l.word(3));
    } else if (command == "press") {
        grid.clickCellButton(rowOf(grid, l.word(1)), columnOf(grid, l.word(2)));
    }
}

std::string GridCommands::check(ScriptContext& c, const ScriptLine& l) {
    Grid& grid = gridOf(c.activeForm());
    if (l.lowerWord(1) == "gridrows") {
        const std::string n = std::to_string(grid.rowCount());
        return n == l.word(2) ? std::string() : grid.name() + " has " + n + " rows, not " + l.word(2);
    }
    const int row = rowOf(grid, l.word(2));
    const std::string shown = grid.displayText(row, columnOf(grid, l.word(3)));
    if (shown == l.word(4)) return {};
    return "row " + l.word(2) + " " + l.word(3) + " shows \"" + shown + "\", not \"" + l.word(4) + "\"";
}

}  // namespace qv
