#include "kit/ScreenFit.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace qv {

namespace {
// Room for a window manager's borders and title bar before the window is
// shown and its real frame known.
constexpr int kFrameWidthAllowance = 16;
constexpr int kFrameHeightAllowance = 40;
}  // namespace

QRect ScreenFit::available(const QWidget* window) {
    const QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

QRect ScreenFit::fit(const QWidget* window, const QRect& wanted) {
    const QRect area = available(window);
    if (area.isEmpty()) return wanted;
    const QRect frame = window->frameGeometry();
    const int extraW = window->isVisible() ? frame.width() - window->width() : kFrameWidthAllowance;
    const int extraH = window->isVisible() ? frame.height() - window->height() : kFrameHeightAllowance;
    QSize size = wanted.size().boundedTo(QSize(area.width() - extraW, area.height() - extraH));
    // A window never shrinks below its minimum: then it is moved instead.
    size = size.expandedTo(window->minimumSize()).expandedTo(QSize(1, 1));
    const int left = std::clamp(wanted.left(), area.left(), std::max(area.left(), area.right() + 1 - size.width() - extraW));
    const int top = std::clamp(wanted.top(), area.top(), std::max(area.top(), area.bottom() + 1 - size.height() - extraH));
    return {QPoint(left, top), size};
}

void ScreenFit::apply(QWidget* window) {
    const QRect wanted(window->pos(), window->size());
    const QRect fitted = fit(window, wanted);
    if (fitted.size() != window->size()) window->resize(fitted.size());
    if (fitted.topLeft() != window->pos()) window->move(fitted.topLeft());
}

}  // namespace qv
