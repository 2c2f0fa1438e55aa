#include "PagePicture.h"

#include <QPainter>

#include "toolkit/Label.h"

namespace qv {

PagePicture::PagePicture(Label& picture, QWidget* parent)
    : QWidget(parent), picture_(picture), changed_(picture.Changed, [this] { update(); }) {
    setObjectName("Image1");
    setMinimumSize(70, 70);
}

void PagePicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool landscape = picture_.caption() == "LANDSCAPE";
    const double side = std::min(width(), height()) * 0.8;
    const QSizeF page = landscape ? QSizeF(side, side * 0.7) : QSizeF(side * 0.7, side);
    const QRectF r(QPointF((width() - page.width()) / 2, (height() - page.height()) / 2), page);
    p.setPen(palette().color(QPalette::WindowText));
    p.setBrush(Qt::white);
    p.drawRect(r);
    // A few lines of text on the page.
    p.setPen(QPen(palette().color(QPalette::Mid), 2));
    for (int i = 1; i <= 4; ++i) {
        const double y = r.top() + r.height() * i / 6.0;
        p.drawLine(QPointF(r.left() + 6, y), QPointF(r.right() - (i == 4 ? r.width() / 2 : 6), y));
    }
}

}  // namespace qv
