#pragma once
// Paints a laid-out document page by page: its plain tables (cells of
// text only, no spans, no tables within, the usual 3D borders) itself,
// the rest by the document. The document's own painting looks every cell
// up by its position and sets the painter's state afresh for each border
// and text; here a page's borders go out a colour at a time. The geometry
// is the document layout's own; a table whose borders don't come out
// where the layout placed its cells is left to the document.

#include <QBrush>
#include <QColor>
#include <QPointF>
#include <QRectF>
#include <vector>

#include "print/PageCuts.h"

class QPainter;
class QTextDocument;
class QTextLayout;
class QTextTable;

namespace qv {

class PagePainter {
public:
    // For a document laid out on one long page for a device of that many
    // dots per inch; it must outlive the painter and stay unchanged.
    PagePainter(QTextDocument& doc, double dotsPerInch);

    // How many tables are painted here.
    [[nodiscard]] std::size_t ownTables() const { return tables_.size(); }
    // The extent of the text of every row of those tables.
    [[nodiscard]] PageCuts::TableRows rows() const;
    // The part of the document within the view, on a page whose top is the
    // view's top.
    void paint(QPainter& painter, const QRectF& view) const;

private:
    struct Text {
        const QTextLayout* layout;
        QPointF at;
    };
    struct Row {
        double top;  // of the cells' backgrounds, the same for every cell of the row
        double bottom;
        double contentTop;  // of the text
        double contentBottom;
        std::size_t firstCell;
    };
    struct Cell {
        double left;
        double right;
        QBrush background;
        std::size_t firstText;
    };
    struct Table {
        const QTextTable* table = nullptr;
        QRectF frame;  // the outer edge of the table's border
        double border = 0;
        double cellBorder = 0;
        QColor light;
        QColor dark;
        std::vector<Row> rows;
        std::vector<Cell> cells;
        std::vector<Text> texts;
    };

    [[nodiscard]] static bool plain(QTextTable& table);
    static void snap(Table& table);
    [[nodiscard]] bool gather(QTextDocument& doc, QTextTable& table, double scale, Table& out) const;
    void paintTable(QPainter& painter, const Table& table, const QRectF& view, const QColor& text) const;

    QTextDocument& doc_;
    std::vector<Table> tables_;
};

}  // namespace qv
