#pragma once
// An editable drop-down list that makes its completer and its pop-up
// only when the user first reaches it (focus, typing, a click, opening it):
// a window of many lists shows sooner and works the same. Sized by a few
// characters, not by measuring every entry of a long list.

#include <QComboBox>

namespace qv {

class ListBox : public QComboBox {
    Q_OBJECT
public:
    explicit ListBox(QWidget* parent = nullptr);

    // Makes the completer, with the list, and the pop-up; once.
    void wake();
    [[nodiscard]] bool awake() const { return awake_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    [[nodiscard]] QSize restingHint() const;

    bool awake_ = false;
    mutable QSize hint_;
};

}  // namespace qv
