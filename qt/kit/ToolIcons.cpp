#include "kit/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace qv {

namespace {

void drawTick(QPainter& p, int s) {
    QPainterPath path;
    path.moveTo(s * 0.25, s * 0.52);
    path.lineTo(s * 0.43, s * 0.70);
    path.lineTo(s * 0.76, s * 0.32);
    p.setPen(QPen(Qt::white, s / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(path);
}

void drawCross(QPainter& p, int s) {
    p.setPen(QPen(Qt::white, s / 8.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(s * 0.32, s * 0.32), QPointF(s * 0.68, s * 0.68));
    p.drawLine(QPointF(s * 0.68, s * 0.32), QPointF(s * 0.32, s * 0.68));
}

void drawDisc(QPainter& p, int s, const QColor& fill) {
    p.setPen(QPen(fill.darker(140), 1));
    p.setBrush(fill);
    p.drawEllipse(QRectF(1, 1, s - 2, s - 2));
}

void drawInUse(QPainter& p, int s) {
    // A clock face: the item is being worked on.
    drawDisc(p, s, QColor(0x2f, 0x6f, 0xd0));
    p.setPen(QPen(Qt::white, s / 10.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(s / 2.0, s / 2.0), QPointF(s / 2.0, s * 0.24));
    p.drawLine(QPointF(s / 2.0, s / 2.0), QPointF(s * 0.70, s * 0.58));
}

}  // namespace

// Each picture is drawn once per size: a window shows the same few many
// times, and opens often.
QPixmap ToolIcons::pixmap(const std::string& name, int size) {
    if (name != "GOOD" && name != "BAD" && name != "GRAY" && name != "INUSE") return {};
    const QString key = QStringLiteral("qv-tool-%1-%2").arg(QString::fromStdString(name)).arg(size);
    QPixmap pm;
    if (QPixmapCache::find(key, &pm)) return pm;
    pm = draw(name, size);
    QPixmapCache::insert(key, pm);
    return pm;
}

QPixmap ToolIcons::draw(const std::string& name, int size) {
    QPixmap pm(size, size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    if (name == "GOOD") {
        drawDisc(p, size, QColor(0x2e, 0x9d, 0x3e));
        drawTick(p, size);
    } else if (name == "BAD") {
        drawDisc(p, size, QColor(0xd0, 0x2f, 0x2f));
        drawCross(p, size);
    } else if (name == "GRAY") {
        drawDisc(p, size, QColor(0xa0, 0xa0, 0xa0));
    } else {
        drawInUse(p, size);
    }
    return pm;
}

QIcon ToolIcons::icon(const std::string& name, int size) {
    const QPixmap pm = pixmap(name, size);
    return pm.isNull() ? QIcon() : QIcon(pm);
}

}  // namespace qv
