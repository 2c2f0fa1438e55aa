#pragma once
// The Page Setup dialog: shows a dialog's print settings string as sheets
// of tools, judges what the user changed and writes the string back into
// TaskPrintDialog. The owner creates it, calls PageSetup, shows it modally
// and lets it go; only the Existing Task dialog listens to its events.

#include <cstdint>
#include <string>
#include <vector>

#include "reports/PageSetupControls.h"
#include "toolkit/Event.h"
#include "toolkit/Form.h"

namespace qv {

class frmPageSetup : public Form {
public:
    frmPageSetup();

    // Fills the tools from TaskPrintDialog; the string must be whole.
    void PageSetup();
    void SetupDefaultPrint();
    void SavePageSetup();
    // stage 1 adds four checks ahead of the usual ones; the dialog passes 0.
    [[nodiscard]] bool ValidatePrintInfo(int32_t stage);
    void addSizeMenu(Tool& tool);
    void addFontMenu(Tool& tool);
    void addHeaderFootMenu(Tool& tool);
    void GetTHEDefaultPrinter();
    void PopulateListControlWithPrinters();

    [[nodiscard]] PageSetupControls& controls() { return c_; }
    [[nodiscard]] const std::vector<std::string>& PrinterList() const { return printerList_; }

    // Raised to the owner, in this order of declaration.
    Event<> Cancel;
    Event<> SavePrintInfoNow;

protected:
    void Form_Load() override;
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;

private:
    void smtPrinting_Change(Tool& tool, const std::string& property);
    void smtPrinting_Click(int index, Tool& tool);
    void smtActions_Click(Tool& tool);
    void showPaper(const std::string& paper);
    void fillFooterTool(const char* key, const std::string& stored);
    [[nodiscard]] std::string footerValue(const char* key) const;
    [[nodiscard]] bool checkMargins() const;
    [[nodiscard]] bool checkFirstStage() const;
    [[nodiscard]] static bool fail(const char* message);

    PageSetupControls c_;
    std::vector<std::string> printerList_;
};

}  // namespace qv
