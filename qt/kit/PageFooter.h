#pragma once
// A footer (or header) text with the print engine's markers, taken apart:
// "{newline}" leaves a blank line, "{line}" draws a rule, "{Left}" and
// "{Right}" start the two sides, "{PageNum}" is the page's number.

#include <QString>

namespace qv {

class PageFooter {
public:
    explicit PageFooter(const QString& text);

    [[nodiscard]] bool rule() const { return rule_; }
    [[nodiscard]] int blankLines() const { return blankLines_; }
    // The sides with the page number put in.
    [[nodiscard]] QString left(int page) const;
    [[nodiscard]] QString right(int page) const;
    [[nodiscard]] bool empty() const { return !rule_ && left_.isEmpty() && right_.isEmpty(); }

private:
    bool rule_ = false;
    int blankLines_ = 0;
    QString left_;
    QString right_;
};

}  // namespace qv
