#pragma once
// The help pop-up in a scenario: the driver installs the real help port,
// whose pop-up takes the lines that follow a help tool like any dialog;
// printing a help page prints a line, and goes to the print engine when
// the driver has one (a PDF beside the page). It answers
// "expect help TOPIC TITLE" and "expect help-page FILE".

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>

#include "help/HelpPrinter.h"
#include "help/PopHelpViewer.h"
#include "help/SurfaceHelpPrinter.h"

namespace qv {

class ScriptHelp : public HelpPrinter {
public:
    explicit ScriptHelp(std::ostream& out);
    ~ScriptHelp() override;

    void print(const HelpPrintJob& job) override;
    void preview(const HelpPrintJob& job) override;

    // "" when the help pop-up shows the topic with the title; else why not.
    [[nodiscard]] std::string checkTopic(int32_t topic, const std::string& title) const;
    // "" when the pop-up's pane shows the page file ("" for an empty pane).
    [[nodiscard]] std::string checkPage(const std::string& file) const;

private:
    std::ostream& out_;
    SurfaceHelpPrinter engine_;
    PopHelpViewer viewer_;
};

}  // namespace qv
