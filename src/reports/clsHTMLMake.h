#pragma once
// Turns the pieces of a report into one HTML text: a heading, a two-column
// table of facts, a checklist, notes and a many-column schedule table.
// The caller sets properties and reads theHTML; nothing is written to a
// file. The text is what the print engine reads and it is forgiving: no
// head, no opening html or body tag, rows and some cell tags left open,
// and nothing escaped. The heading is built when ReportTitle is put, with
// the font and size of that moment.

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"
#include "reports/ReportRows.h"

namespace qv {

class QV_EXPORT clsHTMLMake {
public:
    clsHTMLMake();

    [[nodiscard]] const ReportRows& ScheduleRows() const { return scheduleRows_; }
    void setScheduleRows(ReportRows rows) { scheduleRows_ = std::move(rows); }
    [[nodiscard]] const ReportRows& TaskRows() const { return taskRows_; }
    void setTaskRows(ReportRows rows) { taskRows_ = std::move(rows); }

    // The section gets build and return; the puts store a text or a
    // control word ("--NONE--", "Skip", "No Schedule.").
    [[nodiscard]] std::string theSchedule();
    void settheSchedule(const std::string& v) { schedule_ = v; }
    [[nodiscard]] std::string theTask();
    void settheTask(const std::string& v) { task_ = v; }
    [[nodiscard]] std::string Notes();
    void setNotes(const std::string& v) { notes_ = v; }
    [[nodiscard]] std::string Checklist();
    void setChecklist(const std::string& v) { checklist_ = v; }

    [[nodiscard]] const std::string& HeadingColor() const { return headingColor_; }
    void setHeadingColor(const std::string& v) { headingColor_ = v; }
    [[nodiscard]] int32_t HeadingSize() const { return headingSize_; }
    void setHeadingSize(int32_t v) { headingSize_ = v; }

    // Builds anew on every read.
    [[nodiscard]] std::string theHTML();
    void GeneratetheHMTL();

    [[nodiscard]] const std::string& CellPading() const { return cellPading_; }
    void setCellPading(const std::string& v) { cellPading_ = v; }
    [[nodiscard]] const std::string& CellSpacing() const { return cellSpacing_; }
    void setCellSpacing(const std::string& v) { cellSpacing_ = v; }
    [[nodiscard]] const std::string& Border() const { return border_; }
    void setBorder(const std::string& v) { border_ = v; }
    [[nodiscard]] const std::string& GridHeaderbackColor() const { return headerBack_; }
    void setGridHeaderbackColor(const std::string& v) { headerBack_ = v; }
    [[nodiscard]] const std::string& GridDetailbackColor() const { return detailBack_; }
    void setGridDetailbackColor(const std::string& v) { detailBack_ = v; }

    // Set 1 is the task table's, set 2 the schedule's: comma-separated lists.
    [[nodiscard]] const std::string& ColumnWidth1() const { return width1_; }
    void setColumnWidth1(const std::string& v) { width1_ = v; }
    [[nodiscard]] const std::string& ColumnWidth2() const { return width2_; }
    void setColumnWidth2(const std::string& v) { width2_ = v; }
    [[nodiscard]] const std::string& ColumnAlignment1() const { return align1_; }
    void setColumnAlignment1(const std::string& v) { align1_ = v; }
    [[nodiscard]] const std::string& ColumnAlignment2() const { return align2_; }
    void setColumnAlignment2(const std::string& v) { align2_ = v; }
    [[nodiscard]] const std::string& ColumnHeadings1() const { return headings1_; }
    void setColumnHeadings1(const std::string& v) { headings1_ = v; }
    [[nodiscard]] const std::string& ColumnHeadings2() const { return headings2_; }
    void setColumnHeadings2(const std::string& v) { headings2_ = v; }

    [[nodiscard]] const std::string& Fontface() const { return fontface_; }
    void setFontface(const std::string& v) { fontface_ = v; }
    [[nodiscard]] const std::string& ReportFileName() const { return reportFileName_; }
    void setReportFileName(const std::string& v) { reportFileName_ = v; }
    [[nodiscard]] const std::string& ReportPath() const { return reportPath_; }
    void setReportPath(const std::string& v) { reportPath_ = v; }
    [[nodiscard]] const std::string& PageTitle() const { return pageTitle_; }
    void setPageTitle(const std::string& v) { pageTitle_ = v; }
    [[nodiscard]] const std::string& ReportTitle() const { return reportTitle_; }
    // Stores the built heading, with Fontface and HeadingSize as they are now.
    void setReportTitle(const std::string& title);

    // Section headings of task, checklist, notes and schedule (n = 1 to 4).
    [[nodiscard]] std::string ReportSubTitle(int n) const;
    void setReportSubTitle(int n, const std::string& v);

    [[nodiscard]] const std::string& TableTextColor() const { return tableTextColor_; }
    void setTableTextColor(const std::string& v) { tableTextColor_ = v; }
    [[nodiscard]] bool UnderLineRequired() const { return underLine_; }
    void setUnderLineRequired(bool v) { underLine_ = v; }
    [[nodiscard]] const std::string& FooterString() const { return footer_; }
    void setFooterString(const std::string& v) { footer_ = v; }
    [[nodiscard]] int32_t RowCount() const { return rowCount_; }
    [[nodiscard]] const std::string& PageBackColor() const { return pageBack_; }
    void setPageBackColor(const std::string& v) { pageBack_ = v; }

private:
    // The lists of one table; the has-flags come from the set tested.
    struct Columns {
        std::vector<std::string> headings, widths, alignments;
        bool hasWidths = false, hasAlignments = false;
    };
    [[nodiscard]] std::string buildTask();
    [[nodiscard]] std::string buildSchedule();
    [[nodiscard]] std::string buildSection(int n, const std::string& stored) const;
    [[nodiscard]] bool headingsMissing(const std::string& tested) const;
    [[nodiscard]] Columns columns(const std::string& headings, const std::string& widths,
                                  const std::string& alignments) const;
    [[nodiscard]] std::string tableOpening(int subTitle) const;
    void appendHeader(std::string& out, const Columns& cols) const;
    void appendRows(std::string& out, const Columns& cols, const ReportRows& rows, int32_t lastRow);

    ReportRows scheduleRows_;
    ReportRows taskRows_;
    std::string schedule_;
    std::string task_;
    std::string notes_;
    std::string checklist_;
    std::string headingColor_;
    int32_t headingSize_ = 0;
    std::string html_;
    std::string cellPading_ = "0";
    std::string cellSpacing_ = "0";
    std::string border_ = "1";
    std::string headerBack_ = "#C0C0C0";
    std::string detailBack_;
    std::string width1_, width2_, align1_, align2_, headings1_, headings2_;
    std::string fontface_ = "Tahoma";
    std::string reportFileName_ = "HTMLRpt.html";
    std::string reportPath_;
    std::string pageTitle_ = "HTML Report";
    std::string reportTitle_ = "Sample HTML Report";
    std::string subTitles_[4];
    std::string tableTextColor_;
    bool underLine_ = true;
    std::string footer_;
    int32_t rowCount_ = 0;
    std::string pageBack_;
};

}  // namespace qv
