#pragma once
// A part of a window made after the window was (its widgets join the end of
// the Tab order) takes its place in the order: its stops follow the last
// stop before it, as if it had been made with the rest.

class QWidget;

namespace qv {

class TabPlace {
public:
    static void keep(QWidget* part);
};

}  // namespace qv
