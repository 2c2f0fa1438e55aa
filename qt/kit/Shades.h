#pragma once
// Colours taken from the palette, so a light or a dark desktop theme reads
// alike: bars and headings are the ground tinted with the ink, and a
// tool's own colour (red for a passed deadline) is brought nearer the ink
// where it would not stand out from the ground.

#include <QColor>

namespace qv {

class Shades {
public:
    // a moved toward b by t (0 to 1).
    [[nodiscard]] static QColor blend(const QColor& a, const QColor& b, double t);
    // The contrast ratio of two colours, 1 (none) to 21 (black on white).
    [[nodiscard]] static double contrast(const QColor& a, const QColor& b);
    // The ground of a sheet's title bar, and of a heading inside a sheet.
    [[nodiscard]] static QColor titleGround(const QColor& ground, const QColor& ink);
    [[nodiscard]] static QColor headingGround(const QColor& ground, const QColor& ink);
    // The colour itself where it reads on the ground, else one nearer the ink.
    [[nodiscard]] static QColor readable(const QColor& own, const QColor& ground, const QColor& ink);

    // Text that reads at least this well (large or bold text by the usual measure).
    static constexpr double kMinContrast = 3.0;
};

}  // namespace qv
