#pragma once
// The "Printing" drop-down of a task dialog's action bar: print, print
// preview and page set-up. The dialogs word the page set-up each their own way.

#include <string>

namespace qv {

class Sheet;
class Tool;

class PrintingMenu {
public:
    static Tool& add(Sheet& actions, const std::string& pageSetupCaption);
};

}  // namespace qv
