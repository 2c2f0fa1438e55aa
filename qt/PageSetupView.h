#pragma once
// The Page Setup dialog: printer and margins at the left; heading, footer,
// footer texts and what to print at the right; the page picture; the
// action bar. The two colours are picked with buttons beside their sheets,
// each showing its colour as a swatch.

#include <vector>

#include "kit/EventLink.h"
#include "kit/FormView.h"

namespace qv {

class PageSetupView : public FormView {
    Q_OBJECT
public:
    explicit PageSetupView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {8400, 7800}; }
    [[nodiscard]] QSize defaultTwips() const override { return {9600, 8700}; }

    // The swatch of a colour as the print string keeps it (red in the low
    // byte); a null icon for text that is not a colour number.
    [[nodiscard]] static QIcon swatch(const std::string& number);

private:
    QWidget* colourButton(const char* sheetName, const char* key, const QString& text);

    std::vector<EventLink> swatches_;
};

}  // namespace qv
