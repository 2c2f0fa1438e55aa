#pragma once
// The named controls of the Page Setup dialog: five sheets of settings
// (printer and margins, heading, footer, footer texts, what to print), the
// action bar, the page picture and its labels.

#include <array>
#include <string>

#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"

namespace qv {

struct PageSetupControls {
    PageSetupControls();

    // Sheets by index, as the dialog's control array numbers them.
    enum Index { Printer = 0, Heading = 1, Footer = 2, FooterText = 3, What = 4 };
    std::array<Sheet, 5> smtPrinting{Sheet{"smtPrinting(0)", tr("Printer")}, Sheet{"smtPrinting(1)", tr("Heading")},
                                     Sheet{"smtPrinting(2)", tr("Footer")},
                                     Sheet{"smtPrinting(3)", tr("Footer Text")},
                                     Sheet{"smtPrinting(4)", tr("Print")}};
    Sheet smtActions{"smtActions"};
    Label Image1{"Image1"};  // the page picture: "PORTRAIT" or "LANDSCAPE"
    Label lblPrint{"lblPrint"};
    Label lblStatic{"lblStatic", tr(" Page Setup:")};

    // The tool of any settings sheet by key; throws for an unknown key.
    [[nodiscard]] Tool& tool(const char* key) const;

    // Orientation, pages wide, colour and the missing printer are stored in
    // English ("Landscape", "Automatic", "Yes", "(No Printer Installed)") and
    // shown in the user's language; other texts pass unchanged.
    [[nodiscard]] static std::string shownWord(const std::string& key, const std::string& stored);
    [[nodiscard]] static std::string storedWord(const std::string& key, const std::string& shown);

private:
    void buildPrinter();
    void buildHeadingAndFooter();
    void buildWhat();
    void buildActions();
};

}  // namespace qv
