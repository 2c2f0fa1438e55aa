#include "kit/Shades.h"

#include <algorithm>
#include <cmath>

namespace qv {

namespace {
double channel(double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); }
double luminance(const QColor& c) {
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}
}  // namespace

QColor Shades::blend(const QColor& a, const QColor& b, double t) {
    const auto mix = [t](double x, double y) { return x + (y - x) * t; };
    return QColor::fromRgbF(static_cast<float>(mix(a.redF(), b.redF())), static_cast<float>(mix(a.greenF(), b.greenF())),
                            static_cast<float>(mix(a.blueF(), b.blueF())));
}

double Shades::contrast(const QColor& a, const QColor& b) {
    const double la = luminance(a) + 0.05;
    const double lb = luminance(b) + 0.05;
    return std::max(la, lb) / std::min(la, lb);
}

QColor Shades::titleGround(const QColor& ground, const QColor& ink) { return blend(ground, ink, 0.22); }

QColor Shades::headingGround(const QColor& ground, const QColor& ink) { return blend(ground, ink, 0.10); }

QColor Shades::readable(const QColor& own, const QColor& ground, const QColor& ink) {
    QColor c = own;
    for (double t = 0.25; contrast(c, ground) < kMinContrast && t <= 1.0; t += 0.25) c = blend(own, ink, t);
    return c;
}

}  // namespace qv
