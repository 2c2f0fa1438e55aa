#pragma once
// The panes of a Splitter model in nested QSplitters: columns of panes side
// by side, and a footer row under them. The arrangement goes into the
// model's layout blob (and so its layout file) and comes back from it;
// pane limits come from the model's twips.

#include <functional>
#include <vector>

#include <QSplitter>

#include "kit/EventLink.h"

class QBoxLayout;

namespace qv {

class Form;
class Splitter;

class SplitterView : public QSplitter {
    Q_OBJECT
public:
    // A dialog's panes: pane indexes of each column, the footer's, and how
    // the columns share the width.
    struct Arrangement {
        std::vector<std::vector<int>> columns;
        std::vector<int> footer;
        std::vector<int> stretch;
    };
    // The form's splitter of that name, each pane built by pane(index), added
    // to the layout; nullptr when the form has no such splitter.
    static SplitterView* addTo(QBoxLayout& layout, Form& form, const char* name,
                               const Arrangement& arrangement, const std::function<QWidget*(int)>& pane,
                               QWidget* parent);

    // columns: pane indexes of each column, top to bottom; footer: panes
    // under all columns.
    SplitterView(Splitter& model, std::vector<std::vector<int>> columns, std::vector<int> footer,
                 QWidget* parent = nullptr);

    [[nodiscard]] Splitter& model() const { return model_; }
    // Puts a pane's contents in its place.
    void setPaneWidget(int index, QWidget* w);
    [[nodiscard]] QWidget* paneHolder(int index) const;
    // Every inner splitter, outermost first (tests drag their handles).
    [[nodiscard]] std::vector<QSplitter*> splitters() const;

    [[nodiscard]] QByteArray saveAll() const;
    bool restoreAll(const QByteArray& blob);

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    void buildPanes();
    void watchHandles();
    void applyLimits();
    void applySizes();
    void followModel();

    Splitter& model_;
    std::vector<std::vector<int>> columns_;
    std::vector<int> footer_;
    QSplitter* body_ = nullptr;
    std::vector<QSplitter*> columnSplitters_;
    std::vector<QWidget*> holders_;
    EventLink save_, load_, changed_;
    bool restored_ = false;
};

}  // namespace qv
