#include "kit/Twips.h"

#include <cmath>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace qv {

double Twips::dpi(const QWidget* w) {
    if (w && w->screen()) return w->screen()->logicalDotsPerInchX();
    if (auto* s = QGuiApplication::primaryScreen()) return s->logicalDotsPerInchX();
    return 96.0;
}

int Twips::toPixels(int twips, const QWidget* w) { return static_cast<int>(std::lround(twips * dpi(w) / 1440.0)); }

int Twips::fromPixels(int pixels, const QWidget* w) { return static_cast<int>(std::lround(pixels * 1440.0 / dpi(w))); }

QSize Twips::toPixels(QSize twips, const QWidget* w) {
    return {toPixels(twips.width(), w), toPixels(twips.height(), w)};
}

}  // namespace qv
