#include "PicturePane.h"

#include <algorithm>

#include <QPainter>
#include <QPainterPath>

namespace qv {

PicturePane::PicturePane(QWidget* parent) : QWidget(parent) {
    setObjectName("Pic");
    setMinimumSize(48, 48);
}

void PicturePane::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal side = std::min(width(), height()) * 0.8;
    const QRectF card((width() - side * 0.8) / 2, (height() - side) / 2, side * 0.8, side);
    p.setPen(QPen(QColor(0x55, 0x6b, 0x8d), side / 40));
    p.setBrush(QColor(0xf6, 0xf3, 0xe8));
    p.drawRoundedRect(card, side / 16, side / 16);
    p.setPen(QPen(QColor(0xa8, 0xb4, 0xc6), side / 50));
    for (int i = 1; i <= 4; ++i) {
        const qreal y = card.top() + card.height() * (0.2 + 0.15 * i);
        p.drawLine(QPointF(card.left() + card.width() * 0.15, y), QPointF(card.right() - card.width() * 0.15, y));
    }
    QPainterPath tick;
    tick.moveTo(card.left() + card.width() * 0.25, card.top() + card.height() * 0.22);
    tick.lineTo(card.left() + card.width() * 0.42, card.top() + card.height() * 0.34);
    tick.lineTo(card.left() + card.width() * 0.78, card.top() + card.height() * 0.08);
    p.setPen(QPen(QColor(0x2e, 0x9d, 0x3e), side / 14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(tick);
}

}  // namespace qv
