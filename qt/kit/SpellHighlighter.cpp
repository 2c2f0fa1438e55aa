#include "kit/SpellHighlighter.h"

#include <QRegularExpression>

#include "kit/HunspellChecker.h"

namespace qv {

namespace {
const QRegularExpression& wordPattern() {
    static const QRegularExpression re(QStringLiteral("[\\p{L}']+"));
    return re;
}
}  // namespace

SpellHighlighter::SpellHighlighter(QTextDocument* doc, const HunspellChecker& checker)
    : QSyntaxHighlighter(doc), checker_(checker) {}

void SpellHighlighter::setOn(bool on) {
    if (on_ == on) return;
    on_ = on;
    rehighlight();
}

QStringList SpellHighlighter::misspelt(const QString& line) const {
    QStringList out;
    for (auto it = wordPattern().globalMatch(line); it.hasNext();) {
        const QString word = it.next().captured().remove(QRegularExpression("^'+|'+$"));
        if (!word.isEmpty() && !checker_.isCorrect(word.toStdString())) out << word;
    }
    return out;
}

void SpellHighlighter::highlightBlock(const QString& text) {
    if (!on_) return;
    QTextCharFormat wrong;
    wrong.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    wrong.setUnderlineColor(Qt::red);
    for (auto it = wordPattern().globalMatch(text); it.hasNext();) {
        const auto m = it.next();
        if (!checker_.isCorrect(m.captured().toStdString())) setFormat(m.capturedStart(), m.capturedLength(), wrong);
    }
}

}  // namespace qv
