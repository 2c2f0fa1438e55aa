#pragma once
// The Page Setup dialog's picture of a page, upright or on its side as the
// label it follows names it ("PORTRAIT" or "LANDSCAPE").

#include <QWidget>

#include "kit/EventLink.h"

namespace qv {

class Label;

class PagePicture : public QWidget {
    Q_OBJECT
public:
    explicit PagePicture(Label& picture, QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {90, 90}; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    Label& picture_;
    EventLink changed_;
};

}  // namespace qv
