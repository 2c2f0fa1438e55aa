#include "kit/QtColorChooser.h"

#include <QApplication>
#include <QColorDialog>

namespace qv {

// Colours are RGB longs with red in the low byte.
bool QtColorChooser::choose(int32_t initial, const std::string& title, bool, int32_t& chosen) {
    const QColor start = initial < 0 ? QColor(Qt::black)
                                     : QColor(initial & 0xFF, (initial >> 8) & 0xFF, (initial >> 16) & 0xFF);
    const QColor c =
        QColorDialog::getColor(start, QApplication::activeModalWidget(), QString::fromStdString(title));
    if (!c.isValid()) return false;
    chosen = c.red() | (c.green() << 8) | (c.blue() << 16);
    return true;
}

}  // namespace qv
