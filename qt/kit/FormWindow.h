#pragma once
// The dialog window of one form: it follows the form's caption, geometry
// and visibility, and hands the user's close, keys and resizes to the form.

#include <QDialog>

#include "kit/EventLink.h"

namespace qv {

class Form;
class FormView;

class FormWindow : public QDialog {
    Q_OBJECT
public:
    FormWindow(Form& form, FormView* view, QWidget* parent = nullptr);
    ~FormWindow() override;

    [[nodiscard]] Form& form() const { return form_; }
    [[nodiscard]] FormView* view() const { return view_; }
    // Ends the window's modal loop; the model has hidden the form.
    void finish();

    void reject() override;

protected:
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void moveEvent(QMoveEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void followModel();
    void applyGeometry();
    void reportGeometry();

    Form& form_;
    FormView* view_;
    EventLink changed_;
    bool applying_ = false;
    bool finished_ = false;
};

}  // namespace qv
