#pragma once
// A part of a window filled after the window was made (its new widgets join
// the end of the Tab order) takes its place in the order: its stops stand
// where the part stands, as if it had been filled with the rest.

class QWidget;

namespace qv {

class TabPlace {
public:
    static void keep(QWidget* part);
};

}  // namespace qv
