#pragma once
// The contents of one form's window. A dialog's view composes the generic
// pieces (sheets, editors, date boxes, splitters) that show its model.

#include <QSize>
#include <QString>
#include <QWidget>

#include "Export.h"

namespace qv {

class Form;

class QV_EXPORT FormView : public QWidget {
    Q_OBJECT
public:
    explicit FormView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] Form& form() const { return form_; }
    // The smallest window, in twips, the dialog allows; empty for no limit.
    [[nodiscard]] virtual QSize minimumTwips() const { return {}; }
    // A size to open at when the form gives none, in twips.
    [[nodiscard]] virtual QSize defaultTwips() const { return {6000, 4000}; }
    // The dialog's own limit, but never so small that the contents clip.
    [[nodiscard]] QSize minimumSizeHint() const override;
    // The control that has the focus when the window opens, by object name:
    // where typing makes sense. A holder passes it to its first field.
    void setFirstFocus(const QString& objectName) { firstFocus_ = objectName; }

protected:
    void showEvent(QShowEvent* e) override;

private:
    Form& form_;
    QString firstFocus_;
    bool focused_ = false;
};

}  // namespace qv
