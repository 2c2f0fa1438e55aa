#include "print/PageCuts.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>
#include <climits>
#include <iterator>
#include <map>
#include <utility>

namespace qv {

namespace {

using RowKey = std::pair<const QTextTable*, int>;

// A table's rows meet halfway between one row's text and the next's, so a
// cut there leaves each row's borders with its row.
void addRows(const std::map<RowKey, PageCuts::Span>& rows, std::vector<PageCuts::Span>& out) {
    const QTextTable* table = nullptr;
    std::vector<PageCuts::Span> spans;
    auto flush = [&] {
        for (std::size_t i = 0; i < spans.size(); ++i) {
            const double above =
                i > 0 ? (spans[i - 1].bottom + spans[i].top) / 2
                      : spans[i].top - (spans.size() > 1 ? (spans[1].top - spans[0].bottom) / 2 : 0);
            const double below = i + 1 < spans.size() ? (spans[i].bottom + spans[i + 1].top) / 2
                                                      : spans[i].bottom + (i > 0 ? spans[i].top - above : 0);
            out.push_back({above, below});
        }
        spans.clear();
    };
    for (const auto& [key, span] : rows) {
        if (key.first != table) flush();
        table = key.first;
        spans.push_back(span);
    }
    flush();
}

// Where each cell of a table starts and the row it starts in, in the
// order of the text. A cell's own row lookup searches the whole table, so
// in a long table it is asked of the grid once per cell instead.
struct RowStarts {
    std::vector<std::pair<int, int>> cells;  // first position, row
    [[nodiscard]] int rowAt(int position) const {
        auto it = std::upper_bound(cells.begin(), cells.end(), std::pair{position, INT_MAX});
        return it == cells.begin() ? 0 : std::prev(it)->second;
    }
};

RowStarts rowStarts(const QTextTable& table) {
    RowStarts starts;
    for (int r = 0; r < table.rows(); ++r)
        for (int c = 0; c < table.columns(); ++c) {
            const QTextTableCell cell = table.cellAt(r, c);
            if (cell.isValid()) starts.cells.emplace_back(cell.firstPosition(), r);
        }
    // A cell spanning rows or columns appears once per place: its first row counts.
    std::sort(starts.cells.begin(), starts.cells.end());
    starts.cells.erase(std::unique(starts.cells.begin(), starts.cells.end(),
                                   [](const auto& a, const auto& b) { return a.first == b.first; }),
                       starts.cells.end());
    return starts;
}

// The table a position lies in, the innermost where tables nest.
const QTextTable* innermostTable(QTextDocument& doc, int position) {
    for (QTextFrame* frame = doc.frameAt(position); frame; frame = frame->parentFrame())
        if (auto* table = qobject_cast<QTextTable*>(frame)) return table;
    return nullptr;
}

}  // namespace

namespace {

// Each line of text outside tables, each row's extent within them.
class Spans {
public:
    Spans(QTextDocument& doc, const PageCuts::TableRows& known)
        : doc_(doc), layout_(*doc.documentLayout()), known_(known) {}

    // The frame's blocks one by one, a known table's rows at once.
    void walk(QTextFrame& frame) {
        for (auto it = frame.begin(); !it.atEnd(); ++it) {
            QTextFrame* child = it.currentFrame();
            if (!child) {
                block(it.currentBlock());
                continue;
            }
            auto* table = qobject_cast<QTextTable*>(child);
            const auto found = table ? known_.find(table) : known_.end();
            if (found == known_.end()) {
                walk(*child);
                continue;
            }
            for (std::size_t r = 0; r < found->second.size(); ++r)
                rows_[{table, static_cast<int>(r)}] = found->second[r];
        }
    }

    std::vector<PageCuts::Span> spans() {
        addRows(rows_, out_);
        return std::move(out_);
    }

private:
    void block(const QTextBlock& block) {
        const QRectF rect = layout_.blockBoundingRect(block);
        if (const QTextTable* table = innermostTable(doc_, block.position())) {
            auto found = starts_.find(table);
            if (found == starts_.end()) found = starts_.emplace(table, rowStarts(*table)).first;
            const RowKey key{table, found->second.rowAt(block.position())};
            auto [it, fresh] = rows_.try_emplace(key, PageCuts::Span{rect.top(), rect.bottom()});
            if (!fresh)
                it->second = {std::min(it->second.top, rect.top()), std::max(it->second.bottom, rect.bottom())};
            return;
        }
        const QTextLayout* lines = block.layout();
        for (int i = 0; lines && i < lines->lineCount(); ++i) {
            const QRectF line = lines->lineAt(i).rect();
            out_.push_back({rect.top() + line.top(), rect.top() + line.bottom()});
        }
    }

    QTextDocument& doc_;
    QAbstractTextDocumentLayout& layout_;
    const PageCuts::TableRows& known_;
    std::vector<PageCuts::Span> out_;
    std::map<RowKey, PageCuts::Span> rows_;
    std::map<const QTextTable*, RowStarts> starts_;
};

}  // namespace

std::vector<PageCuts::Span> PageCuts::keepTogether(QTextDocument& doc, const TableRows& known) {
    Spans spans(doc, known);
    spans.walk(*doc.rootFrame());
    return spans.spans();
}

std::vector<double> PageCuts::cuts(std::vector<Span> spans, double documentHeight, double pageHeight) {
    std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.top < b.top; });
    std::vector<double> tops{0.0};
    double top = 0.0;
    std::size_t from = 0;  // spans ending above the page's top are behind us
    while (top + pageHeight < documentHeight) {
        double cut = top + pageHeight;
        while (from < spans.size() && spans[from].bottom <= top) ++from;
        // Move the cut up out of every span it would split.
        for (bool moved = true; moved;) {
            moved = false;
            for (std::size_t i = from; i < spans.size() && spans[i].top < cut; ++i)
                if (spans[i].bottom > cut && spans[i].top > top) {
                    cut = spans[i].top;
                    moved = true;
                }
        }
        if (cut <= top) cut = top + pageHeight;
        tops.push_back(cut);
        top = cut;
    }
    tops.push_back(documentHeight);
    return tops;
}

}  // namespace qv
