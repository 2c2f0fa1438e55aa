#include "reports/clsHTMLMake.h"

#include "reports/EventPause.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

const char* const kModule = "clsHTMLMake";
const char* const kCRLF = "\r\n";
const char* const kNone = "--NONE--";
const char* const kNoSchedule = "No Schedule.";
const char* const kSkip = "Skip";
const char* const kNoHeadings = QV_N("Column Header details not mentioned!");
const char* const kMessageTitle = QV_N("HTML Report");

// An empty text gives no parts, as the platform's split does.
std::vector<std::string> splitCommas(const std::string& text) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    std::size_t from = 0;
    for (;;) {
        const std::size_t comma = text.find(',', from);
        parts.push_back(text.substr(from, comma == std::string::npos ? std::string::npos : comma - from));
        if (comma == std::string::npos) return parts;
        from = comma + 1;
    }
}

const std::string& part(const std::vector<std::string>& parts, std::size_t i) {
    if (i >= parts.size()) throw Failure(err::SubscriptOutOfRange, "Subscript out of range");
    return parts[i];
}

std::string quoted(const std::string& v) {
    return "\"" + v + "\"";
}

}  // namespace

clsHTMLMake::clsHTMLMake() : reportPath_(g().AppPath) {}

void clsHTMLMake::setReportTitle(const std::string& title) {
    trap(kModule, "ReportTitle", [&] {
        reportTitle_ = "<h1><font face=" + fontface_ + " color=" + "4" +
                       "><span style= \"font-size:" + std::to_string(static_cast<int64_t>(headingSize_) + 4) +
                       "pt\">" + title + "</span></font></h1>";
    });
}

std::string clsHTMLMake::ReportSubTitle(int n) const {
    return trap(kModule, "ReportSubTitle", [&] {
        if (n < 1 || n > 4) throw Failure(err::SubscriptOutOfRange, "Subscript out of range");
        return std::string(kCRLF) + "<BR><h2><font face=" + fontface_ + " color=" + "4" +
               "><span style= \"font-size:" + std::to_string(headingSize_) + "pt\">" + subTitles_[n - 1] +
               "</span></font></h2><BR>";
    });
}

void clsHTMLMake::setReportSubTitle(int n, const std::string& v) {
    if (n >= 1 && n <= 4) subTitles_[n - 1] = v;
}

std::string clsHTMLMake::theHTML() {
    GeneratetheHMTL();
    return html_;
}

void clsHTMLMake::GeneratetheHMTL() {
    trap(kModule, "GeneratetheHMTL", [&] {
        html_.clear();
        html_ += reportTitle_;
        EventPause::now();
        html_ += theTask();
        EventPause::now();
        html_ += Checklist();
        EventPause::now();
        html_ += Notes();
        EventPause::now();
        html_ += theSchedule();
        EventPause::now();
        html_ += "</body></html>";
        if (Ui* u = ports().ui) u->setWaitCursor(false);
    });
}

std::string clsHTMLMake::Checklist() {
    return trap(kModule, "Checklist", [&] { return buildSection(2, checklist_); });
}

std::string clsHTMLMake::Notes() {
    return trap(kModule, "Notes", [&] { return buildSection(3, notes_); });
}

std::string clsHTMLMake::buildSection(int n, const std::string& stored) const {
    if (stored == kNone) return {};
    return ReportSubTitle(n) + kCRLF + stored;
}

bool clsHTMLMake::headingsMissing(const std::string& tested) const {
    if (!tested.empty()) return false;
    if (Ui* u = ports().ui) u->msgBox(tr(kNoHeadings), vbInformation, tr(kMessageTitle));
    return true;
}

std::string clsHTMLMake::theTask() {
    return trap(kModule, "theTask", [&] { return buildTask(); });
}

std::string clsHTMLMake::buildTask() {
    if (task_ == kNone) return {};
    if (headingsMissing(headings1_)) return {};
    const Columns cols = columns(headings1_, width1_, align1_);
    std::string out = tableOpening(1);
    appendHeader(out, cols);
    out += "</tr>";
    rowCount_ = taskRows_.upperRow();
    appendRows(out, cols, taskRows_, rowCount_);
    out += "</tr>";
    out += "</table>";
    return out;
}

// The schedule tests the first set of lists and takes its values from the
// second: both sets must be given.
std::string clsHTMLMake::theSchedule() {
    return trap(kModule, "theSchedule", [&] { return buildSchedule(); });
}

std::string clsHTMLMake::buildSchedule() {
    if (schedule_ == kNoSchedule || schedule_ == kNone) return ReportSubTitle(4) + tr(kNoSchedule);
    if (schedule_ == kSkip) return {};
    if (headingsMissing(headings1_)) return {};
    const Columns cols = columns(headings2_, width2_, align2_);
    std::string out = tableOpening(4);
    appendHeader(out, cols);
    if (scheduleRows_.isNull()) return out + "</tr></table>";
    out += "</tr>";
    rowCount_ = scheduleRows_.upperRow();
    // The last row is the caller's spare one and is not shown.
    appendRows(out, cols, scheduleRows_, rowCount_ - 1);
    out += "</tr>";
    out += "</table>";
    return out;
}

// Whether a table has widths and alignments is asked of the first set;
// the lists themselves come from the table's own set.
clsHTMLMake::Columns clsHTMLMake::columns(const std::string& headings, const std::string& widths,
                                          const std::string& alignments) const {
    Columns cols;
    cols.headings = splitCommas(headings);
    cols.hasWidths = !width1_.empty();
    if (cols.hasWidths) cols.widths = splitCommas(widths);
    cols.hasAlignments = !align1_.empty();
    if (cols.hasAlignments) cols.alignments = splitCommas(alignments);
    return cols;
}

std::string clsHTMLMake::tableOpening(int subTitle) const {
    return ReportSubTitle(subTitle) + "<table WIDTH=\"100%\" cellpadding=" + quoted(cellPading_) + kCRLF +
           " cellspacing=" + quoted(cellSpacing_) + kCRLF + " border=" + quoted(border_) + ">" + kCRLF +
           "<tr BGCOLOR=" + quoted(headerBack_) + ">" + kCRLF;
}

void clsHTMLMake::appendHeader(std::string& out, const Columns& cols) const {
    for (std::size_t i = 0; i < cols.headings.size(); ++i) {
        if (cols.hasWidths)
            out += "<td width=" + quoted(part(cols.widths, i)) + "align=\"center\" >";
        else
            out += "<td align=\"center\" >";
        out += "<font face=" + quoted(fontface_) + " color=" + quoted(tableTextColor_) + "><b>" +
               cols.headings[i] + "</b></font></td>" + kCRLF;
    }
}

// Rows open with <tr> and are not closed one by one; a cell's tag closes
// only where it carries a background colour.
void clsHTMLMake::appendRows(std::string& out, const Columns& cols, const ReportRows& rows, int32_t lastRow) {
    const std::string font = "<font face=" + quoted(fontface_);
    const std::string size = tableTextColor_.empty() ? std::string(" size=\"2\">")
                                                     : " color=" + quoted(tableTextColor_) + " size=\"2\">";
    const std::string back = detailBack_.empty() ? std::string() : " bgcolor=" + quoted(detailBack_) + ">";
    EventPause pause;
    for (int32_t r = 0; r <= lastRow; ++r) {
        out += "<tr>";
        out += kCRLF;
        for (std::size_t c = 0; c < cols.headings.size(); ++c) {
            if (cols.hasWidths)
                out += "<td width=" + quoted(part(cols.widths, c));
            else
                out += "<td";
            if (cols.hasAlignments) out += "align=" + quoted(part(cols.alignments, c));
            out += back;
            out += font;
            out += size;
            out += rows.at(static_cast<int32_t>(c), r);
            out += "</font></td>";
            pause.tick();
        }
    }
}

}  // namespace qv
