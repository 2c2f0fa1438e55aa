#pragma once
// Spell-as-you-type: underlines the misspelt words of a document.

#include <QSyntaxHighlighter>

namespace qv {

class SpellChecker;

class SpellHighlighter : public QSyntaxHighlighter {
    Q_OBJECT
public:
    SpellHighlighter(QTextDocument* doc, SpellChecker& checker);

    void setOn(bool on);
    [[nodiscard]] bool isOn() const { return on_; }
    [[nodiscard]] SpellChecker& checker() const { return *checker_; }
    void setChecker(SpellChecker& checker);
    // The misspelt words of one line (tests).
    [[nodiscard]] QStringList misspelt(const QString& line) const;
    // The misspelt word of a line at a position, with where it starts; empty when right.
    [[nodiscard]] QString misspeltAt(const QString& line, int position, int* start = nullptr) const;

protected:
    void highlightBlock(const QString& text) override;

private:
    [[nodiscard]] bool wrong(const QString& word) const;

    SpellChecker* checker_;
    bool on_ = false;
};

}  // namespace qv
