#pragma once
// A label whose text wraps, that remembers the heights it gave for a few
// widths: a window's layout asks them over and over while it settles, and
// each answer lays the text out anew.

#include <QLabel>
#include <array>

namespace qv {

class WrapLabel : public QLabel {
    Q_OBJECT
public:
    explicit WrapLabel(QWidget* parent = nullptr);

    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* e) override;

private:
    // What the height depends on besides the width.
    struct Look {
        QString text;
        QFont font;
        QMargins margins;
        int margin = 0;
        int indent = 0;
        int frame = 0;
        Qt::Alignment alignment;
        Qt::TextFormat format = Qt::AutoText;
        bool wraps = false;
        bool operator==(const Look&) const = default;
    };
    [[nodiscard]] Look look() const;
    void forget() const;

    struct Known {
        int width = -1;
        int height = 0;
    };
    mutable Look seen_;
    mutable std::array<Known, 4> known_{};
    mutable std::size_t next_ = 0;
};

}  // namespace qv
