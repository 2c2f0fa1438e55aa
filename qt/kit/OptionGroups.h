#pragma once
// Option tools next to each other in a sheet behave as one group at the
// keyboard, as exclusive radio buttons do: the group is one Tab stop (its
// chosen option, else its first), and the arrow keys move to the next or
// previous option and choose it.

#include <vector>

#include <QObject>

namespace qv {

class ToolCell;

class OptionGroups : public QObject {
    Q_OBJECT
public:
    explicit OptionGroups(QObject* parent = nullptr) : QObject(parent) {}

    // Follows the sheet's cells: called after they are built or refreshed.
    void follow(const std::vector<ToolCell*>& cells);

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    // Each run of neighbouring option cells, in sheet order.
    std::vector<std::vector<ToolCell*>> groups_;
};

}  // namespace qv
