#include "kit/OptionGroups.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include "kit/ToolCell.h"

namespace qv {

namespace {
QAbstractButton* buttonOf(const ToolCell* cell) { return qobject_cast<QAbstractButton*>(cell->control()); }

int stepOf(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left: return -1;
    case Qt::Key_Down:
    case Qt::Key_Right: return 1;
    default: return 0;
    }
}
}  // namespace

void OptionGroups::follow(const std::vector<ToolCell*>& cells) {
    groups_.clear();
    bool inRun = false;
    for (ToolCell* cell : cells) {
        const bool option = cell->kind() == ToolCell::Kind::Option && buttonOf(cell);
        if (option && !inRun) groups_.emplace_back();
        if (option) groups_.back().push_back(cell);
        inRun = option;
    }
    for (const auto& group : groups_) {
        const ToolCell* stop = group.front();
        for (const ToolCell* cell : group)
            if (buttonOf(cell)->isChecked()) stop = cell;
        for (ToolCell* cell : group) {
            QAbstractButton* b = buttonOf(cell);
            b->setFocusPolicy(cell == stop ? Qt::StrongFocus : Qt::ClickFocus);
            b->removeEventFilter(this);
            b->installEventFilter(this);
        }
    }
}

bool OptionGroups::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() != QEvent::KeyPress) return false;
    const int step = stepOf(static_cast<QKeyEvent*>(e)->key());
    if (step == 0) return false;
    for (const auto& group : groups_) {
        const int n = static_cast<int>(group.size());
        for (int i = 0; i < n; ++i) {
            if (buttonOf(group[static_cast<std::size_t>(i)]) != watched) continue;
            if (n < 2) return true;
            QAbstractButton* next = buttonOf(group[static_cast<std::size_t>((i + step + n) % n)]);
            next->setFocus(Qt::TabFocusReason);
            next->click();
            return true;
        }
    }
    return false;
}

}  // namespace qv
