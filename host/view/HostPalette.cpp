#include "view/HostPalette.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace qv {

void HostPalette::applyFromEnvironment() {
    if (qEnvironmentVariable("QUORVEL_PALETTE") == QLatin1String("dark")) applyDark();
}

void HostPalette::applyDark() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette p;
    const QColor window(53, 53, 53);
    const QColor base(35, 35, 35);
    const QColor blue(42, 130, 218);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, Qt::white);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, window);
    p.setColor(QPalette::Text, Qt::white);
    p.setColor(QPalette::Button, window);
    p.setColor(QPalette::ButtonText, Qt::white);
    p.setColor(QPalette::BrightText, Qt::red);
    p.setColor(QPalette::Link, blue);
    p.setColor(QPalette::Highlight, blue);
    p.setColor(QPalette::HighlightedText, Qt::black);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    QApplication::setPalette(p);
}

}  // namespace qv
