#pragma once
// Twips (1/1440 inch) to pixels and back, at the screen's logical DPI.

#include <QSize>

class QWidget;

namespace qv {

class Twips {
public:
    [[nodiscard]] static double dpi(const QWidget* w = nullptr);
    [[nodiscard]] static int toPixels(int twips, const QWidget* w = nullptr);
    [[nodiscard]] static int fromPixels(int pixels, const QWidget* w = nullptr);
    [[nodiscard]] static QSize toPixels(QSize twips, const QWidget* w = nullptr);
};

}  // namespace qv
