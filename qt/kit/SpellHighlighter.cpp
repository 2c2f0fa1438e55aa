#include "kit/SpellHighlighter.h"

#include <QRegularExpression>

#include "toolkit/SpellChecker.h"

namespace qv {

namespace {
const QRegularExpression& wordPattern() {
    static const QRegularExpression re(QStringLiteral("[\\p{L}']+"));
    return re;
}
// A word without the quotes around it.
QString bare(const QString& word, int* offset = nullptr) {
    static const QRegularExpression edges(QStringLiteral("^'+|'+$"));
    const QRegularExpressionMatch lead = QRegularExpression(QStringLiteral("^'+")).match(word);
    if (offset) *offset = lead.hasMatch() ? static_cast<int>(lead.capturedLength()) : 0;
    return QString(word).remove(edges);
}
}  // namespace

SpellHighlighter::SpellHighlighter(QTextDocument* doc, SpellChecker& checker)
    : QSyntaxHighlighter(doc), checker_(&checker) {}

void SpellHighlighter::setOn(bool on) {
    if (on_ == on) return;
    on_ = on;
    rehighlight();
}

void SpellHighlighter::setChecker(SpellChecker& checker) {
    checker_ = &checker;
    rehighlight();
}

bool SpellHighlighter::wrong(const QString& word) const {
    return !word.isEmpty() && !checker_->isCorrect(word.toStdString());
}

QStringList SpellHighlighter::misspelt(const QString& line) const {
    QStringList out;
    for (auto it = wordPattern().globalMatch(line); it.hasNext();)
        if (const QString word = bare(it.next().captured()); wrong(word)) out << word;
    return out;
}

QString SpellHighlighter::misspeltAt(const QString& line, int position, int* start) const {
    for (auto it = wordPattern().globalMatch(line); it.hasNext();) {
        const auto m = it.next();
        if (position < m.capturedStart() || position > m.capturedEnd()) continue;
        int offset = 0;
        const QString word = bare(m.captured(), &offset);
        if (!wrong(word)) return {};
        if (start) *start = static_cast<int>(m.capturedStart()) + offset;
        return word;
    }
    return {};
}

void SpellHighlighter::highlightBlock(const QString& text) {
    if (!on_ || !checker_->available()) return;
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    format.setUnderlineColor(Qt::red);
    for (auto it = wordPattern().globalMatch(text); it.hasNext();) {
        const auto m = it.next();
        int offset = 0;
        const QString word = bare(m.captured(), &offset);
        if (wrong(word)) setFormat(static_cast<int>(m.capturedStart()) + offset, static_cast<int>(word.size()), format);
    }
}

}  // namespace qv
