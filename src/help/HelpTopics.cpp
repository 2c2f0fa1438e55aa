#include "help/HelpTopics.h"

#include "toolkit/Translate.h"

#include <algorithm>
#include <array>

namespace qv {

namespace {

struct Row {
    int32_t from, to;
    const char* page;
    const char* title;
};

// Titles as the windows show them. Topic 99 carries the Task Catalog title
// on the help page, and topic 10 keeps the Task Catalog page for printing
// (below): both settled that way.
constexpr std::array<Row, 26> kRows{{
    {0, 7, "POP-MetricsQV.htm", QV_N("Quorvel: Quorvel Metrics")},
    {8, 8, "POP-KEYWORDS.htm", QV_N("Quorvel: Keywords")},
    {9, 9, "POP-TASKCAT.htm", QV_N("Quorvel: Task Catalog")},
    {10, 10, "POP-QVIMPORT.htm", QV_N("Quorvel: Import From QV-XL")},
    {23, 23, "POP-XLExport.htm", QV_N("Quorvel: Export to Excel")},
    {50, 50, "AutoSchedule.htm", QV_N("Quorvel: Automatic Scheduling")},
    {51, 51, "ManualSchedule.htm", QV_N("Quorvel: Manual Scheduling")},
    {70, 70, "TAB-CHECKLISTS.htm", QV_N("Quorvel: Checklists")},
    {71, 71, "CHECKLISTS-IMPORT.htm", QV_N("Quorvel: Checklists")},
    {72, 72, "CHECKLISTS-EXPORT.htm", QV_N("Quorvel: Checklists")},
    {99, 99, "POP-HELP.htm", QV_N("Quorvel: Task Catalog")},
    {100, 100, "POP-UTILITIES.htm", QV_N("Quorvel: Utilities")},
    {200, 200, "POP-OUTLOOKIMPORT.htm", QV_N("Quorvel: Outlook Task Import")},
    {250, 250, "POP-OUTLOOKINTEGRATE.htm", QV_N("Quorvel: Outlook Task Import")},
    {300, 300, "POP-PRINTDIALOG.htm", QV_N("Quorvel: Print and Print Preview")},
    {400, 400, "POP-ARRANGER.htm", QV_N("Quorvel: Data Arrangement")},
    {500, 500, "POP-SETTINGS.htm", QV_N("Quorvel: Settings")},
    {502, 502, "POP-DATESETTINGS.htm", QV_N("Quorvel: Settings")},
    {600, 600, "POP-TASKDIALOG.htm", QV_N("Quorvel: Creating New Tasks")},
    {601, 601, "POP-EXISTINGTASKDIALOG.htm", QV_N("Quorvel: Working With Existing Tasks")},
    {700, 700, "POP-TASDIALOG.htm", QV_N("Quorvel: Working with Task Appointments")},
    {800, 800, "POP-ADDPROJECT.htm", QV_N("Quorvel: Adding a Project")},
    {900, 900, "SYSTRAY.htm", QV_N("Quorvel: The System Tray Menu")},
    {5000, 5000, "helpindex.htm", QV_N("Quorvel: Help Index")},
    {6000, 6000, "strategies.htm", QV_N("Quorvel Strategies")},
    {7000, 7000, "QV-TOUR1.htm", QV_N("Quorvel Getting Started Tour")},
}};

constexpr int32_t kImportTopic = 10;
constexpr const char* kImportKeptPage = "POP-TASKCAT.htm";

}  // namespace

std::optional<HelpTopic> HelpTopics::find(int32_t topic) {
    const auto it = std::find_if(kRows.begin(), kRows.end(), [topic](const Row& r) { return topic >= r.from && topic <= r.to; });
    if (it == kRows.end()) return std::nullopt;
    const std::string page = std::string(kHelpFolder) + it->page;
    const std::string kept = topic == kImportTopic ? std::string(kHelpFolder) + kImportKeptPage : page;
    return HelpTopic{page, kept, tr(it->title)};
}

const std::vector<std::string>& HelpTopics::pageFiles() {
    static const std::vector<std::string> files = [] {
        std::vector<std::string> v;
        for (const Row& r : kRows) v.emplace_back(r.page);
        return v;
    }();
    return files;
}

}  // namespace qv
