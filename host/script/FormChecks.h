#pragma once
// The scenario expectations that read the dialog shown, and the naming of
// its tools. Each check gives an empty text when it holds, else what was
// found; a line that names nothing there throws std::invalid_argument.
//
//   expect tool sheet.KEY PROPERTY VALUE   caption, text, tag, image, enabled,
//                                          visible, checked, tip, bold, forecolor
//   expect absent sheet.KEY                no such tool or entry
//   expect checked SHEET CAPTION           the first checked tool ("" if none)
//   expect editor NAME TEXT                an editor's plain text
//   expect date NAME TEXT                  a date box's text ("" for no date)
//   expect caption TEXT                    the dialog's caption
//   expect tab NAME INDEX                  the tab shown
//   expect window left|top|width|height|state VALUE

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class Form;
class Sheet;
class Tool;

class FormChecks {
public:
    static void addTo(ScriptCommands& table);
    // A tool named sheet.KEY, and its sheet when asked.
    static Tool& toolOf(Form& form, const std::string& target, Sheet** sheetOut = nullptr);

private:
    [[nodiscard]] static std::string tool(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string absent(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string checked(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string editor(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string date(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string caption(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string tab(Form& form, const ScriptLine& l);
    [[nodiscard]] static std::string window(Form& form, const ScriptLine& l);
};

}  // namespace qv
