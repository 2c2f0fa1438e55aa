#include "kit/PageFooter.h"

namespace qv {

namespace {
const QString kNewline = QStringLiteral("{newline}");
const QString kLine = QStringLiteral("{line}");
const QString kLeft = QStringLiteral("{Left}");
const QString kRight = QStringLiteral("{Right}");
const QString kPageNum = QStringLiteral("{PageNum}");
}  // namespace

PageFooter::PageFooter(const QString& text) {
    QString rest = text;
    const qsizetype leftAt = rest.indexOf(kLeft);
    const qsizetype rightAt = rest.indexOf(kRight);
    // What stands before the first side holds the line markers.
    const qsizetype sidesAt = leftAt < 0 ? rightAt : (rightAt < 0 ? leftAt : std::min(leftAt, rightAt));
    const QString lead = sidesAt < 0 ? rest : rest.left(sidesAt);
    blankLines_ = static_cast<int>(lead.count(kNewline));
    rule_ = lead.contains(kLine);
    if (leftAt >= 0) {
        const qsizetype end = rightAt > leftAt ? rightAt : rest.size();
        left_ = rest.mid(leftAt + kLeft.size(), end - leftAt - kLeft.size());
    }
    if (rightAt >= 0) {
        const qsizetype end = leftAt > rightAt ? leftAt : rest.size();
        right_ = rest.mid(rightAt + kRight.size(), end - rightAt - kRight.size());
    }
}

QString PageFooter::left(int page) const {
    return QString(left_).replace(kPageNum, QString::number(page));
}

QString PageFooter::right(int page) const {
    return QString(right_).replace(kPageNum, QString::number(page));
}

}  // namespace qv
