#include "print/PagePainter.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>
#include <cmath>

namespace qv {

namespace {

constexpr double kCssDotsPerInch = 96.0;
constexpr double kSlack = 1.0;  // device dots a border may be off by rounding

// Lengths as the layout holds them: in 64ths of a dot; borders and the
// spacing between cells in whole dots.
double fixed(double value) { return std::round(value * 64.0) / 64.0; }
double whole(double value) { return std::floor(fixed(value) + 0.5); }

bool near(double a, double b) { return std::abs(a - b) <= kSlack; }

// A cell's padding on one side: its own where it has one, else the table's.
double padding(const QTextTableCellFormat& cell, QTextFormat::Property side, double table, double scale) {
    return cell.hasProperty(side) ? fixed(cell.doubleProperty(side) * scale) : table;
}

// A paragraph laid out like any other line of text: no list, rule,
// picture, background, margin or indent of its own.
bool plainBlock(const QTextBlock& block) {
    const QTextBlockFormat f = block.blockFormat();
    return block.textList() == nullptr && f.background().style() == Qt::NoBrush &&
           !f.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth) && f.topMargin() == 0 &&
           f.bottomMargin() == 0 && f.leftMargin() == 0 && f.rightMargin() == 0 && f.indent() == 0 &&
           f.textIndent() == 0 && block.layout() != nullptr && block.layout()->lineCount() > 0 &&
           !block.layout()->text().contains(QChar::ObjectReplacementCharacter);
}

bool plainCell(const QTextTableCellFormat& f) {
    if (f.tableCellRowSpan() > 1 || f.tableCellColumnSpan() > 1) return false;
    for (int p = QTextFormat::TableCellTopBorder; p <= QTextFormat::TableCellRightBorderBrush; ++p)
        if (f.hasProperty(p)) return false;
    const auto align = f.verticalAlignment();
    const auto brush = f.background().style();
    return (align == QTextCharFormat::AlignNormal || align == QTextCharFormat::AlignTop) &&
           (brush == Qt::NoBrush || brush == Qt::SolidPattern);
}

// A border of width w around the outside of the rectangle, its top and
// left edges in one colour, its bottom and right in the other.
void addEdges(const QRectF& outer, double w, std::vector<QRectF>& topLeft, std::vector<QRectF>& bottomRight) {
    topLeft.emplace_back(outer.left(), outer.top(), w, outer.height());
    topLeft.emplace_back(outer.left() + w, outer.top(), outer.width() - w, w);
    bottomRight.emplace_back(outer.right() - w, outer.top() + w, w, outer.height() - 2 * w);
    bottomRight.emplace_back(outer.left() + w, outer.bottom() - w, outer.width() - w, w);
}

}  // namespace

PagePainter::PagePainter(QTextDocument& doc, double dotsPerInch) : doc_(doc) {
    const double scale = dotsPerInch / kCssDotsPerInch;
    for (QTextFrame* frame : doc.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        Table gathered;
        if (table && plain(*table) && gather(doc, *table, scale, gathered)) tables_.push_back(std::move(gathered));
    }
}

bool PagePainter::plain(QTextTable& table) {
    const QTextTableFormat f = table.format();
    return table.childFrames().isEmpty() && table.rows() > 0 && table.columns() > 0 &&
           f.position() == QTextFrameFormat::InFlow && !f.borderCollapse() &&
           f.borderStyle() == QTextFrameFormat::BorderStyle_Outset && f.background().style() == Qt::NoBrush &&
           f.topMargin() == 0 && f.bottomMargin() == 0 && f.leftMargin() == 0 && f.rightMargin() == 0 &&
           f.padding() == 0;
}

// The cells' backgrounds from their text and padding; the borders and
// spacing between them as the table's format gives them, which must meet
// where the layout put the cells and the table's edge. The layout places
// a cell by its column and row, so it is asked where the first row's
// cells and each row's first cell are, and where the last row's are, to
// be sure.
bool PagePainter::gather(QTextDocument& doc, QTextTable& table, double scale, Table& out) const {
    const QTextTableFormat f = table.format();
    auto* layout = doc.documentLayout();
    const double spacing = whole(f.cellSpacing() * scale);
    const double cellPadding = fixed(f.cellPadding() * scale);
    out.border = out.cellBorder = whole(f.border() * scale);
    const QColor colour = f.borderBrush().color();
    out.light = colour.lighter();
    out.dark = colour;
    const int rows = table.rows();
    const int columns = table.columns();
    std::vector<double> columnX(static_cast<std::size_t>(columns));
    double rowY = 0;
    for (int r = 0; r < rows; ++r) {
        Row row{0, 0, 0, 0, out.cells.size()};
        double bottom = 0;
        for (int c = 0; c < columns; ++c) {
            const QTextTableCell cell = table.cellAt(r, c);
            if (!cell.isValid()) return false;
            const QTextTableCellFormat cf = cell.format().toTableCellFormat();
            if (!plainCell(cf)) return false;
            Cell painted{0, 0, cf.background(), out.texts.size()};
            double cellTop = 0;
            double cellBottom = 0;
            bool first = true;
            for (auto it = cell.begin(); !it.atEnd(); ++it) {
                const QTextBlock block = it.currentBlock();
                if (it.currentFrame() || !plainBlock(block)) return false;
                const QTextLayout* lines = block.layout();
                if (first && (r == 0 || c == 0 || r == rows - 1)) {
                    const QPointF at = layout->blockBoundingRect(block).topLeft() - lines->position();
                    if (r == 0) columnX[c] = at.x();
                    if (c == 0) rowY = at.y();
                    if (!near(at.x(), columnX[c]) || !near(at.y(), rowY)) return false;
                }
                const QPointF at(columnX[c], rowY);
                const QRectF rect(at + lines->position(), lines->boundingRect().size());
                out.texts.push_back({lines, at});
                if (first) {
                    painted.left = rect.left() - padding(cf, QTextFormat::TableCellLeftPadding, cellPadding, scale);
                    painted.right =
                        rect.right() + padding(cf, QTextFormat::TableCellRightPadding, cellPadding, scale);
                    cellTop = rect.top() - padding(cf, QTextFormat::TableCellTopPadding, cellPadding, scale);
                    if (c == 0) row.contentTop = rect.top(), row.contentBottom = rect.bottom();
                    first = false;
                }
                row.contentTop = std::min(row.contentTop, rect.top());
                row.contentBottom = std::max(row.contentBottom, rect.bottom());
                cellBottom = rect.bottom() + padding(cf, QTextFormat::TableCellBottomPadding, cellPadding, scale);
            }
            if (first) return false;  // a cell with no paragraph
            if (c == 0) row.top = cellTop, bottom = cellBottom;
            if (!near(cellTop, row.top)) return false;
            bottom = std::max(bottom, cellBottom);
            if (c > 0 && !near(painted.left - out.cells.back().right, spacing + 2 * out.cellBorder)) return false;
            out.cells.push_back(painted);
        }
        row.bottom = bottom;
        out.rows.push_back(row);
    }
    // The table's outer edge, and each row down to where the next begins.
    const double toCell = out.cellBorder + spacing + out.border;
    const QRectF bounds = layout->frameBoundingRect(&table);
    out.frame = QRectF(out.cells.front().left - toCell, out.rows.front().top - toCell, bounds.width(), bounds.height());
    if (!near(out.frame.right(), out.cells.at(static_cast<std::size_t>(columns) - 1).right + toCell)) return false;
    out.table = &table;
    for (std::size_t r = 0; r < out.rows.size(); ++r) {
        const double bottom = r + 1 < out.rows.size() ? out.rows[r + 1].top - spacing - 2 * out.cellBorder
                                                      : out.frame.bottom() - toCell;
        if (!near(out.rows[r].bottom, bottom)) return false;
        out.rows[r].bottom = bottom;
    }
    snap(out);
    return true;
}

// The document paints a table from the nearest whole dot to where it lies.
void PagePainter::snap(Table& t) {
    const QPointF by = QPointF(t.frame.topLeft().toPoint()) - t.frame.topLeft();
    t.frame.translate(by);
    for (Row& row : t.rows) row.top += by.y(), row.bottom += by.y();
    for (Cell& cell : t.cells) cell.left += by.x(), cell.right += by.x();
    for (Text& text : t.texts) text.at += by;
}

PageCuts::TableRows PagePainter::rows() const {
    PageCuts::TableRows out;
    for (const Table& t : tables_) {
        auto& spans = out[t.table];
        for (const Row& row : t.rows) spans.push_back({row.contentTop, row.contentBottom});
    }
    return out;
}

// The document is told to leave the tables' extent out. The tables are
// painted in the page's own coordinates: a moved painter costs the PDF a
// transformation around every rectangle and text.
void PagePainter::paint(QPainter& painter, const QRectF& view) const {
    constexpr double kApart = 1.0;  // the document draws a table touching its clip
    QAbstractTextDocumentLayout::PaintContext ctx;
    double top = view.top();
    const auto drawDown = [&](double bottom) {
        if (bottom <= top) return;
        ctx.clip = QRectF(view.left(), top, view.width(), bottom - top);
        painter.save();
        painter.translate(0, -view.top());
        doc_.documentLayout()->draw(&painter, ctx);
        painter.restore();
    };
    for (const Table& t : tables_) {
        if (t.frame.bottom() < view.top() || t.frame.top() > view.bottom()) continue;
        drawDown(t.frame.top() - kApart);
        top = std::max(top, t.frame.bottom() + kApart);
    }
    drawDown(view.bottom());
    for (const Table& t : tables_)
        if (t.frame.bottom() >= view.top() && t.frame.top() <= view.bottom())
            paintTable(painter, t, view, ctx.palette.color(QPalette::Text));
}

// Borders and backgrounds a colour at a time, then the texts.
void PagePainter::paintTable(QPainter& painter, const Table& t, const QRectF& view, const QColor& text) const {
    // In the order the document paints them, where rounding makes two meet.
    std::vector<QRectF> frameLight;
    std::vector<QRectF> frameDark;
    std::vector<QRectF> light;
    std::vector<QRectF> dark;
    std::vector<std::pair<QBrush, std::vector<QRectF>>> backgrounds;
    const QPointF shift(0, -view.top());
    if (t.border > 0) addEdges(t.frame.translated(shift), t.border, frameLight, frameDark);
    auto first = std::lower_bound(t.rows.begin(), t.rows.end(), view.top(),
                                  [&t](const Row& row, double y) { return row.bottom + t.cellBorder < y; });
    auto last = first;
    for (; last != t.rows.end() && last->top - t.cellBorder <= view.bottom(); ++last) {
        const std::size_t end = last + 1 != t.rows.end() ? (last + 1)->firstCell : t.cells.size();
        for (std::size_t c = last->firstCell; c < end; ++c) {
            const Cell& cell = t.cells[c];
            const QRectF inner(cell.left, last->top + shift.y(), cell.right - cell.left, last->bottom - last->top);
            if (t.cellBorder > 0)
                addEdges(inner.adjusted(-t.cellBorder, -t.cellBorder, t.cellBorder, t.cellBorder), t.cellBorder,
                         dark, light);
            if (cell.background.style() == Qt::NoBrush) continue;
            auto same = std::find_if(backgrounds.begin(), backgrounds.end(),
                                     [&cell](const auto& b) { return b.first == cell.background; });
            if (same == backgrounds.end()) same = backgrounds.insert(backgrounds.end(), {cell.background, {}});
            same->second.push_back(inner);
        }
    }
    painter.save();
    painter.setPen(Qt::NoPen);
    // Each rectangle a fill of its own: a viewer puts a lone rectangle's
    // edges on whole pixels, as it did the document's.
    const auto fill = [&painter](const QBrush& brush, const std::vector<QRectF>& rects) {
        if (rects.empty()) return;
        painter.setBrush(brush);
        for (const QRectF& rect : rects) painter.drawRect(rect);
    };
    painter.setRenderHint(QPainter::Antialiasing, true);  // as the document draws borders
    fill(t.light, frameLight);
    fill(t.dark, frameDark);
    fill(t.dark, dark);
    fill(t.light, light);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const auto& [brush, rects] : backgrounds) fill(brush, rects);
    painter.setPen(text);
    painter.setBrush(Qt::NoBrush);
    if (first != last) {
        const std::size_t from = t.cells[first->firstCell].firstText;
        const std::size_t to = last != t.rows.end() ? t.cells[last->firstCell].firstText : t.texts.size();
        for (std::size_t i = from; i < to; ++i) t.texts[i].layout->draw(&painter, t.texts[i].at + shift);
    }
    painter.restore();
}

}  // namespace qv
