#pragma once
// A dialog's plain label (a banner) following its Label model.

#include <QLabel>

#include "kit/EventLink.h"

namespace qv {

class Label;

class LabelView : public QLabel {
    Q_OBJECT
public:
    explicit LabelView(Label& model, QWidget* parent = nullptr);

private:
    void followModel();

    Label& model_;
    EventLink changed_;
};

}  // namespace qv
