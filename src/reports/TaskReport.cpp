#include "reports/TaskReport.h"

#include <fstream>

#include "reports/EventPause.h"
#include "reports/FooterText.h"
#include "reports/PrintSettings.h"
#include "reports/ReportSource.h"
#include "reports/clsHTMLMake.h"
#include "reports/frmPageSetup.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CStringBag.h"
#include "values/types/Convert.h"
#include "values/types/International.h"
#include "values/types/TaskUtil.h"

namespace qv {

namespace {

const char* const kNone = "--NONE--";
const char* const kReportsFolder = "Quorvel Reports/";
const char* const kTitlePrefix = "Quorvel -";
constexpr int32_t kTwipsPerInch = 1440;
constexpr int32_t kTwipsPerCentimeter = 567;

// A title stored by an older release becomes this release's.
std::string currentTitle(const std::string& footer) {
    return footer.rfind(kTitlePrefix, 0) == 0 ? std::string(kProgramTitle) : footer;
}

// An editor's content with its formatting, a word for an empty one, or
// the section left out.
std::string editorSection(bool asked, const TextEditor& editor, const char* empty) {
    if (!asked) return kNone;
    return editor.text().empty() ? tr(empty) : editor.richText();
}

std::string footerLine(const std::string& left, const std::string& right) {
    return "{newline}{line}{Left}" + left + "{Right}" + right;
}

}  // namespace

const TaskReport::Kind TaskReport::kNewTask{
    "NewTask.htm", QV_N("Print this Task? It may take a moment or two to prepare."),
    QV_N("Print Preview this Task? It may take a moment or two to prepare.")};
const TaskReport::Kind TaskReport::kExistingTask{
    "ExistingTask.htm", QV_N("Print this Task? It may take a moment or two to prepare."),
    QV_N("Print Preview this Task? It may take a moment or two to prepare."), true};
const TaskReport::Kind TaskReport::kTaskAppointment{
    "TaskAppointment.htm", QV_N("Print this Task Appointment? It may take a moment or two to prepare."),
    QV_N("Print Preview this Task Appointment? It may take a moment or two to prepare.")};

int32_t TaskReport::twips(float margin) {
    const int32_t factor = getLocalMeasurement() == 1 ? kTwipsPerInch : kTwipsPerCentimeter;
    return roundLong(static_cast<double>(margin) * factor);
}

std::string TaskReport::reportPath() const {
    std::string path = g().AppPath;
    if (path.empty() || path.back() != '/') path += '/';
    return path + kReportsFolder + kind_.fileName;
}

std::optional<std::string> TaskReport::MakeHTML() {
    return trap(module_, "MakeHTML", [&] { return std::optional<std::string>(buildHTML()); });
}

std::string TaskReport::buildHTML() {
    CStringBag bag;
    clsHTMLMake html;
    bag.setContents(g().TaskPrintDialog);
    // Printer, orientation and copies are read and go no further.
    (void)bag.ReadItem("PRINTER");
    (void)bag.ReadItem("PAPER");
    (void)toLong(bag.ReadItem("COPIES"));
    Kept k;
    k.top = toSingle(bag.ReadItem("TOP"));
    k.bottom = toSingle(bag.ReadItem("BOTTOM"));
    k.right = toSingle(bag.ReadItem("RIGHT"));
    k.left = toSingle(bag.ReadItem("LEFT"));
    const int32_t headColor = toLong(bag.ReadItem("HCOLOR"));
    const std::string headFont = bag.ReadItem("HFONT");
    const int32_t headSize = toLong(bag.ReadItem("HSIZE"));
    const std::string heading = bag.ReadItem("HEADING");
    k.footerColor = toLong(bag.ReadItem("FCOLOR"));
    k.footerFont = bag.ReadItem("FFONT");
    k.footerSize = toLong(bag.ReadItem("FSIZE"));
    const std::string left = bag.ReadItem("FLEFT");
    const std::string right = bag.ReadItem("FRIGHT");
    EventPause::now();
    k.footerLeft = FooterText::forPrint(left, clock().now());
    k.footerRight = FooterText::forPrint(right, clock().now());
    kept_ = k;

    const bool task = PrintSettings::boolOf(bag.ReadItem("PTASK"));
    const bool checklist = PrintSettings::boolOf(bag.ReadItem("PCHECKLIST"));
    const bool notes = PrintSettings::boolOf(bag.ReadItem("PNOTES"));
    const bool schedule = g().DialogNum == PrintSettings::kExistingTaskDialog &&
                          PrintSettings::boolOf(bag.ReadItem("PSCHEDULE"));

    html.setFontface(headFont);
    html.setHeadingColor(LongToHex(headColor));
    html.setHeadingSize(headSize);
    html.setTableTextColor(std::to_string(headColor));
    html.setReportTitle(heading);
    html.setGridDetailbackColor("#FFFFFF");
    if (task) {
        html.setReportSubTitle(1, tr("Task Information:"));
        html.setColumnHeadings1(tr("What,Value"));
        html.setColumnWidth1("40%,60%");
        html.setColumnAlignment1("right,left");
        html.setBorder("1");
        html.setCellPading("4");
        html.setCellSpacing("4");
        html.setTaskRows(source_.taskRows());
    } else {
        html.settheTask(kNone);
    }
    if (checklist) html.setReportSubTitle(2, tr("Checklist:"));
    html.setChecklist(editorSection(checklist, source_.checklistEditor(), QV_N("No Checklist.")));
    if (notes) html.setReportSubTitle(3, tr("Notes:"));
    html.setNotes(editorSection(notes, source_.notesEditor(), QV_N("No Notes.")));
    if (!source_.hasSchedule()) {
        html.settheSchedule("Skip");
    } else if (schedule) {
        html.setReportSubTitle(4, tr("Schedule:"));
        html.setColumnHeadings2(tr("Start,End,Duration,Done?,Time Spent"));
        html.setColumnWidth2("30%,30%,20%,20%,20%");
        html.setColumnAlignment2("center,center,center,center,center");
        html.setBorder("1");
        html.setCellPading("4");
        html.setCellSpacing("4");
        if (auto rows = source_.scheduleRows()) {
            // The builder leaves the last row out: it is the spare one.
            rows->addRow();
            html.setScheduleRows(std::move(*rows));
        } else {
            html.settheSchedule("No Schedule.");
        }
    } else {
        html.settheSchedule(kNone);
    }
    return html.theHTML();
}

void TaskReport::DoPrint() {
    trap(module_, "DoPrint", [&] { run(false); });
}

void TaskReport::DoPrintPreview() {
    trap(module_, "DoPrintPreview", [&] { run(true); });
}

void TaskReport::run(bool preview) {
    if (ui().msgBox(tr(preview ? kind_.previewQuestion : kind_.printQuestion), vbYesNo, kProgramTitle) != vbYes)
        return;
    ui().setWaitCursor(true);
    EventPause::now();
    const auto html = MakeHTML();
    if (!html) return;
    writeReport(*html);
    EventPause::now();
    const PrintJob j = job(preview);
    EventPause::now();
    if (PrintSurface* surface = ports().print) {
        if (preview)
            surface->preview(j);
        else
            surface->print(j);
    }
    ui().setWaitCursor(false);
}

void TaskReport::writeReport(const std::string& html) const {
    const std::string path = reportPath();
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) throw Failure(err::PathNotFound, "Path not found: " + path);
    out << html;
    out.close();
    if (!out) throw Failure(err::PathNotFound, "Path not found: " + path);
}

PrintJob TaskReport::job(bool preview) const {
    PrintJob j;
    std::string left = kept_.footerLeft;
    std::string right = kept_.footerRight;
    if (kind_.printFooterBeforeTitle && !preview) {
        j.footer = footerLine(left, right);
    } else {
        left = currentTitle(left);
        right = currentTitle(right);
        j.footer = footerLine(left, right);
    }
    j.footerFont = kept_.footerFont;
    j.footerSize = kept_.footerSize;
    j.marginLeft = twips(kept_.left);
    j.marginRight = twips(kept_.right);
    j.marginTop = twips(kept_.top);
    j.marginBottom = twips(kept_.bottom);
    j.file = reportPath();
    return j;
}

void TaskReport::PageSetup(Form& owner, const std::function<void()>& onSaved) {
    struct Lower {
        ~Lower() { g().SettingUp = false; }
    } lower;
    auto form = std::make_shared<frmPageSetup>();
    if (onSaved) form->SavePrintInfoNow.connect(onSaved);
    form->PageSetup();
    if (form->loaded()) form->showModal(&owner);
    form->unload();
    deferRelease(form);
}

}  // namespace qv
