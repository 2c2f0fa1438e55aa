#pragma once
// Spell-as-you-type: underlines the misspelt words of a document.

#include <QSyntaxHighlighter>

namespace qv {

class HunspellChecker;

class SpellHighlighter : public QSyntaxHighlighter {
    Q_OBJECT
public:
    SpellHighlighter(QTextDocument* doc, const HunspellChecker& checker);

    void setOn(bool on);
    [[nodiscard]] bool isOn() const { return on_; }
    // The misspelt words of one line (tests).
    [[nodiscard]] QStringList misspelt(const QString& line) const;

protected:
    void highlightBlock(const QString& text) override;

private:
    const HunspellChecker& checker_;
    bool on_ = false;
};

}  // namespace qv
