#pragma once
// The Page Setup dialog: printer and margins at the left; heading, footer,
// footer texts and what to print at the right; the page picture; the
// action bar. The two colours are picked with buttons beside their sheets.

#include "kit/FormView.h"

namespace qv {

class PageSetupView : public FormView {
    Q_OBJECT
public:
    explicit PageSetupView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {8400, 7800}; }
    [[nodiscard]] QSize defaultTwips() const override { return {9600, 8700}; }

private:
    QWidget* colourButton(const char* sheetName, const char* key, const QString& text);
};

}  // namespace qv
