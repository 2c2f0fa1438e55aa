// A wrapping label that remembers heights answers as a plain wrapping
// label does, whatever changed since it last answered.
#include <gtest/gtest.h>

#include <QLabel>
#include <functional>

#include "kit/WrapLabel.h"

namespace qv {
namespace {

struct Change {
    const char* what;
    std::function<void(QLabel&)> apply;
};

TEST(WrapLabel, HeightsFollowEveryChange) {
    QWidget window;
    auto* remembering = new WrapLabel(&window);
    auto* plain = new QLabel(&window);
    plain->setWordWrap(true);
    const std::vector<Change> changes{
        {"text", [](QLabel& l) { l.setText("Possible Points: 12"); }},
        {"longer text", [](QLabel& l) { l.setText("A reading long enough to wrap over several lines at most widths"); }},
        {"bold", [](QLabel& l) { QFont f = l.font(); f.setBold(true); l.setFont(f); }},
        {"larger", [](QLabel& l) { QFont f = l.font(); f.setPointSize(f.pointSize() + 6); l.setFont(f); }},
        {"margins", [](QLabel& l) { l.setContentsMargins(7, 3, 9, 2); }},
        {"margin", [](QLabel& l) { l.setMargin(5); }},
        {"indent", [](QLabel& l) { l.setIndent(11); }},
        {"frame", [](QLabel& l) { l.setFrameStyle(QFrame::Box | QFrame::Plain); l.setLineWidth(3); }},
        {"no wrap", [](QLabel& l) { l.setWordWrap(false); }},
        {"plain text", [](QLabel& l) { l.setTextFormat(Qt::PlainText); l.setText("<b>not bold</b> but long enough to wrap"); }},
    };
    for (const Change& c : changes) {
        c.apply(*remembering);
        c.apply(*plain);
        // Twice over, the second time from what it remembers.
        for (int pass = 0; pass < 2; ++pass)
            for (int width : {0, 10, 40, 90, 160, 400, 2000})
                EXPECT_EQ(remembering->heightForWidth(width), plain->heightForWidth(width))
                    << c.what << " at " << width << ", pass " << pass;
    }
}

}  // namespace
}  // namespace qv
