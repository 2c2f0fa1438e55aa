#include "kit/AccessibleText.h"

#include <QRegularExpression>
#include <QWidget>

#include "kit/QtText.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

namespace {

QString words(const std::string& key) {
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z]+$"));
    QString k = QString::fromStdString(key);
    if (!plain.match(k).hasMatch()) return {};
    return k.left(1).toUpper() + k.mid(1).toLower();
}

// The plain label tool just before this one, as a sheet shows a value
// under its label ("Possible Points:" then the points).
const Tool* labelBefore(const Tool& t) {
    if (!t.sheet() || t.parent()) return nullptr;
    const Tool* before = nullptr;
    for (const auto& other : t.sheet()->tools()) {
        if (other.get() == &t) break;
        before = other.get();
    }
    const bool plainLabel = before && before->items().empty() && before->hostedControl().empty() &&
                            (before->type() == 0 || before->type() == ttHeading);
    return plainLabel && !before->caption().empty() ? before : nullptr;
}

}  // namespace

QString AccessibleText::clean(const std::string& caption) {
    QString s = QString::fromStdString(caption);
    s.replace(QStringLiteral("&&"), QStringLiteral("\x01")).remove(QLatin1Char('&')).replace(QChar(1), QLatin1Char('&'));
    s = s.simplified();
    while (s.endsWith(QLatin1Char(':'))) s = s.chopped(1).trimmed();
    return s;
}

QString AccessibleText::nameOf(const Tool& t) {
    if (QString c = clean(t.caption()); !c.isEmpty()) return c;
    if (const Tool* label = labelBefore(t)) return clean(label->caption());
    if (QString tip = clean(t.tip()); !tip.isEmpty()) return tip;
    if (QString key = words(t.key()); !key.isEmpty()) return key;
    return t.sheet() && !t.parent() ? clean(t.sheet()->title()) : QString();
}

QString AccessibleText::stateOf(const std::string& image) {
    if (image == "GOOD") return qtr("ready");
    if (image == "BAD") return qtr("not ready");
    if (image == "GRAY") return qtr("stopped");
    if (image == "INUSE") return qtr("running");
    return {};
}

void AccessibleText::set(QWidget* w, const QString& name, const QString& description) {
    if (!w) return;
    if (w->accessibleName() != name) w->setAccessibleName(name);
    if (w->accessibleDescription() != description) w->setAccessibleDescription(description);
}

}  // namespace qv
