#pragma once
// The New Task dialog's picture: a task card with a tick, drawn by us.

#include <QWidget>

namespace qv {

class PicturePane : public QWidget {
    Q_OBJECT
public:
    explicit PicturePane(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* e) override;
};

}  // namespace qv
