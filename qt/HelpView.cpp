#include "HelpView.h"

#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QKeySequence>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "help/frmPopHelp.h"
#include "kit/AccessibleText.h"
#include "kit/Shades.h"
#include "kit/PaneBuilder.h"

namespace qv {

HelpView::HelpView(Form& form, QWidget* parent) : FormView(form, parent), pop_(static_cast<frmPopHelp&>(form)) {
    setObjectName(QStringLiteral("frmPopHelp.view"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(4);
    column->addWidget(PaneBuilder(form, this).sheet("smtAction", SheetWidget::Style::Toolbar));
    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("browsePWindow"));
    browser_->setOpenLinks(false);
    column->addWidget(browser_, 1);
    connect(browser_, &QTextBrowser::anchorClicked, this, &HelpView::followLink);
    styleHeadings();
    moved_ = EventLink(pop_.browsePWindow.Changed, [this] { showLocation(); });
    addKeys();
    showLocation();
    // Reading starts in the page: arrows and Page Down scroll it at once.
    setFocusProxy(browser_);
    browser_->setFocus();
}

// The keys a browser user expects, each through the pop-up's own tools.
void HelpView::addKeys() {
    const auto bind = [this](const QKeySequence& keys, const char* tool) {
        auto* s = new QShortcut(keys, this);
        connect(s, &QShortcut::activated, this, [this, tool] { press(tool); });
    };
    bind(QKeySequence::Back, "BACK");
    bind(QKeySequence(Qt::Key_Backspace), "BACK");
    bind(QKeySequence::Print, "PRINT");
}

void HelpView::press(const char* key) {
    if (Tool* t = pop_.smtAction.find(key); t && t->visible() && t->enabled()) pop_.smtAction.click(*t);
}

void HelpView::showLocation() {
    if (!pop_.browsePWindow.hasPage()) {
        browser_->clear();
        return;
    }
    const QString path = QString::fromStdString(pop_.browsePWindow.LocationURL());
    const qsizetype hash = path.indexOf(QLatin1Char('#'));
    QUrl url = QUrl::fromLocalFile(hash < 0 ? path : path.left(hash));
    if (hash >= 0) url.setFragment(path.mid(hash + 1));
    browser_->setSource(url);
    AccessibleText::set(browser_, QString::fromStdString(form().caption()));
    // The way back is the model's: the pane keeps none of its own.
    browser_->clearHistory();
}

// Headings in the link colour of the palette, where it reads on the page:
// the pages' style sheet leaves colours to the desktop.
void HelpView::styleHeadings() {
    const QPalette& p = browser_->palette();
    const QColor heading = Shades::readable(p.color(QPalette::Link), p.color(QPalette::Base), p.color(QPalette::Text));
    browser_->document()->setDefaultStyleSheet(QStringLiteral("h1, h2 { color: %1; }").arg(heading.name()));
}

void HelpView::changeEvent(QEvent* e) {
    FormView::changeEvent(e);
    if (e->type() != QEvent::PaletteChange || !browser_) return;
    styleHeadings();
    if (pop_.browsePWindow.hasPage()) browser_->reload();
}

void HelpView::followLink(const QUrl& link) {
    const QUrl url = browser_->source().resolved(link);
    if (!url.isLocalFile()) {
        QDesktopServices::openUrl(url);
        return;
    }
    std::string place = url.toLocalFile().toStdString();
    if (url.hasFragment()) place += "#" + url.fragment().toStdString();
    pop_.browsePWindow.followed(place);
}

}  // namespace qv
