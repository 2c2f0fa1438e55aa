#include "kit/WrapLabel.h"

#include <QEvent>

namespace qv {

WrapLabel::WrapLabel(QWidget* parent) : QLabel(parent) { setWordWrap(true); }

WrapLabel::Look WrapLabel::look() const {
    return {text(), font(), contentsMargins(), margin(), indent(), frameWidth(), alignment(), textFormat(), wordWrap()};
}

int WrapLabel::heightForWidth(int width) const {
    Look now = look();
    if (!(now == seen_)) {
        seen_ = std::move(now);
        forget();
    }
    for (const Known& k : known_)
        if (k.width == width) return k.height;
    const int height = QLabel::heightForWidth(width);
    known_[next_] = {width, height};
    next_ = (next_ + 1) % known_.size();
    return height;
}

void WrapLabel::forget() const {
    known_.fill({});
    next_ = 0;
}

// The same font measures otherwise in another style or on another screen.
bool WrapLabel::event(QEvent* e) {
    switch (e->type()) {
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
    case QEvent::StyleChange:
    case QEvent::ScreenChangeInternal: forget(); break;
    default: break;
    }
    return QLabel::event(e);
}

}  // namespace qv
