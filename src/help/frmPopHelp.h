#pragma once
// The help pop-up: one topic's page in a browser pane, with Back, Print,
// Print Preview and Close, and for the tour a tool that says whether the
// tour shows when the program starts.

#include <cstdint>
#include <string>

#include "toolkit/ReporterRelay.h"
#include "help/HelpBrowser.h"
#include "help/HelpLanguages.h"
#include "help/HelpPrinter.h"
#include "toolkit/Event.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"

namespace qv {

class TourPreference;

class frmPopHelp : public Form {
public:
    // Either port may be missing: then nothing prints, or the tour's tool
    // keeps its state for this window only.
    explicit frmPopHelp(HelpPrinter* printer = nullptr, TourPreference* tour = nullptr);

    // Keeps the print settings string for the print tools; true.
    bool setHelpPrinterSettings(const std::string& settings);
    // Shows the topic. An unknown number leaves the pane empty. False
    // when a fault ended the session on the way.
    bool Setup(int32_t topic);
    // The page layout the print settings give, for the page shown.
    [[nodiscard]] HelpPrintJob MakeHelpHTML() const;

    // The page kept for printing ("help/..."), and the topic remembered
    // for the tour's tool (0 for any other topic).
    [[nodiscard]] const std::string& helpPath() const { return helpPath_; }
    [[nodiscard]] int32_t rememberedTopic() const { return rememberedTopic_; }

    Event<> closePop;
    Event<const std::string&> helpLocation;  // the pane's location after Setup
    Event<> GotErrExitNow;

    Sheet smtAction{"smtAction"};
    HelpBrowser browsePWindow;

    // The project name this form reports faults under.
    static constexpr const char* kProject = "QuorvelExportExcel";

protected:
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;
    void Form_QueryUnload(bool& cancel, int32_t unloadMode) override;

private:
    void smtAction_Click(Tool& t);
    void closeNow();
    void printTopic(bool preview);
    // The file the print tools take: the pane's page, else the kept path.
    [[nodiscard]] std::string pageToPrint() const;
    [[nodiscard]] std::string helpFolder() const;

    HelpPrinter* printer_;
    TourPreference* tour_;
    HelpLanguages languages_;
    std::string printSettings_;
    std::string helpPath_;
    int32_t rememberedTopic_ = 0;
    ReporterRelay relay_{GotErrExitNow};
};

}  // namespace qv
