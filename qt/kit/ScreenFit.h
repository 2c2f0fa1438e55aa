#pragma once
// Keeps a top-level window within the available area of its screen (the
// screen less panels and docks), whatever the scale factor: a size asked
// for by the program or kept from an earlier, larger screen shrinks to fit,
// and a window placed off the area moves back onto it.

#include <QRect>

class QWidget;

namespace qv {

class ScreenFit {
public:
    // The available area of the screen the window is on (or will be).
    [[nodiscard]] static QRect available(const QWidget* window);
    // The geometry (inside the frame) nearest to wanted that fits.
    [[nodiscard]] static QRect fit(const QWidget* window, const QRect& wanted);
    // Resizes and moves the window to fit.
    static void apply(QWidget* window);
};

}  // namespace qv
