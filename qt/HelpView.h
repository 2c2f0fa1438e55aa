#pragma once
// The help pop-up's window: its action tools above an HTML pane that shows
// the page the browser model stands on. Links inside the help folder are
// followed in the pane (so Back can return); others open outside.

#include "kit/EventLink.h"
#include "kit/FormView.h"

class QTextBrowser;
class QUrl;

namespace qv {

class frmPopHelp;

class HelpView : public FormView {
    Q_OBJECT
public:
    explicit HelpView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {4800, 3600}; }
    [[nodiscard]] QSize defaultTwips() const override { return {9000, 7800}; }
    [[nodiscard]] QTextBrowser* browser() const { return browser_; }

protected:
    void changeEvent(QEvent* e) override;

private:
    void showLocation();
    void styleHeadings();
    void followLink(const QUrl& url);
    void press(const char* key);
    void addKeys();

    frmPopHelp& pop_;
    QTextBrowser* browser_ = nullptr;
    EventLink moved_;
};

}  // namespace qv
