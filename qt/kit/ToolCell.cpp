#include "kit/ToolCell.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>

#include "kit/AccessibleText.h"
#include "kit/ListBox.h"
#include "kit/MenuButtonAccessible.h"
#include "kit/Shades.h"
#include "kit/SheetWidget.h"
#include "kit/ToolIcons.h"
#include "kit/WrapLabel.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

bool hasOptionItems(const Tool& t) {
    for (const auto& i : t.items())
        if (i->type() == ttOption) return true;
    return false;
}

// A widget that shows with its window once that shows is left to it:
// showing it now would polish it and lay it out before the window does.
void showAs(QWidget* w, bool visible) {
    if (visible && !w->isHidden() && !w->testAttribute(Qt::WA_WState_ExplicitShowHide)) return;
    w->setVisible(visible);
}

// A colour as the model keeps it: red in the low byte.
QColor colorOf(int32_t rgb) { return {rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF}; }

}  // namespace

ToolCell::Kind ToolCell::kindOf(const Tool& t, bool toolbar) {
    if (!t.hostedControl().empty()) return Kind::Hosted;
    if (hasOptionItems(t)) return Kind::List;
    if (!t.items().empty()) return Kind::MenuButton;
    switch (t.type()) {
    case ttButton: return t.caption().empty() && !t.image().empty() ? Kind::Icon : Kind::Button;
    case ttCheck: return Kind::Check;
    case ttOption: return Kind::Option;
    case ttTextBox: return Kind::TextBox;
    case ttHeading: return Kind::Heading;
    case ttSeparator: return toolbar ? Kind::Spacer : Kind::Separator;
    case ttDropSeparator: return toolbar ? Kind::Spacer : Kind::Separator;
    default: return t.caption().empty() && !t.image().empty() ? Kind::Icon : Kind::Label;
    }
}

QString ToolCell::objectNameOf(const Tool& t, int position) {
    const QString sheet = t.sheet() ? qs(t.sheet()->name()) : QString();
    return sheet + "." + (t.key().empty() ? QStringLiteral("#%1").arg(position) : qs(t.key()));
}

QString ToolCell::readingOf(const Tool& t) {
    if (t.caption().empty() || t.text().empty()) return qs(t.caption() + t.text());
    return qs(t.caption()) + " " + qs(t.text());
}

QColor ToolCell::foreColorOf(const Tool& t) { return t.foreColor() ? colorOf(t.foreColor()) : QColor(); }

ToolCell::ToolCell(Tool& tool, SheetWidget& owner, int position, QWidget* parent)
    : QWidget(parent),
      tool_(&tool),
      owner_(owner),
      kind_(kindOf(tool, owner.style() == SheetWidget::Style::Toolbar)),
      toolbar_(owner.style() == SheetWidget::Style::Toolbar) {
    setObjectName(objectNameOf(tool, position));
    build();
    refresh();
}

void ToolCell::build() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(toolbar_ ? 1 : 4, 1, 4, 1);
    row->setSpacing(4);
    // Most tools show no picture of their own: the label comes when one does.
    if (kind_ == Kind::Icon) makeImage();
    if (kind_ == Kind::TextBox) {
        // A text tool with a picture (the stopwatch) is clicked through it,
        // by mouse or by Space.
        press_ = new QToolButton(this);
        press_->setObjectName(objectName() + ".press");
        press_->setAutoRaise(true);
        connect(press_, &QToolButton::clicked, this,
                [this] { owner_.forward(tool_, [](Tool& t) { t.sheet()->click(t); }); });
        row->addWidget(press_);
    }
    switch (kind_) {
    case Kind::Button: main_ = makeButton(); break;
    case Kind::MenuButton: main_ = makeMenuButton(); break;
    case Kind::Check: main_ = makeCheck(); break;
    case Kind::Option: main_ = makeOption(); break;
    case Kind::List: main_ = makeLabeled(makeList()); break;
    case Kind::TextBox: main_ = makeTextBox(); break;
    case Kind::Heading: main_ = makeHeading(); break;
    case Kind::Separator: main_ = makeSeparator(); break;
    case Kind::Spacer: main_ = new QWidget(this); break;
    case Kind::Label: main_ = makeLabel(); break;
    case Kind::Hosted: main_ = makeLabeled(owner_.makeHosted(tool_->hostedControl(), this)); break;
    case Kind::Icon: main_ = makeIcon(); break;
    }
    // Check boxes and options keep their own width, so a click lands on them.
    // On a tool bar every tool keeps its own width; spacers take the rest.
    const bool natural = kind_ == Kind::Check || kind_ == Kind::Option || toolbar_;
    if (main_) {
        row->addWidget(main_, natural ? 0 : 1);
        main_->installEventFilter(this);
    }
    if (kind_ == Kind::Spacer || (natural && !toolbar_)) row->addStretch(1);
}

// First in the row.
void ToolCell::makeImage() {
    icon_ = new QLabel(this);
    icon_->setObjectName(objectName() + ".image");
    static_cast<QBoxLayout*>(layout())->insertWidget(0, icon_);
}

QWidget* ToolCell::makeButton() {
    auto* b = new QToolButton(this);
    b->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    b->setAutoRaise(!toolbar_);
    if (!toolbar_) b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(b, &QToolButton::clicked, this, [this] { owner_.forward(tool_, [](Tool& t) { t.sheet()->click(t); }); });
    return b;
}

QWidget* ToolCell::makeMenuButton() {
    MenuButtonAccessible::install();
    auto* b = qobject_cast<QToolButton*>(makeButton());
    menu_ = new QMenu(b);
    b->setMenu(menu_);
    // A list with a key is a split button: its face acts too.
    const bool split = !tool_->key().empty() && tool_->type() != ttDropSeparator;
    b->setPopupMode(split ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
    if (!split) disconnect(b, &QToolButton::clicked, this, nullptr);
    fillMenu();
    return b;
}

void ToolCell::fillMenu() {
    for (const auto& item : tool_->items()) {
        if (item->type() == ttDropSeparator || item->type() == ttSeparator) {
            menu_->addSeparator();
            continue;
        }
        Tool* sub = item.get();
        QAction* a = menu_->addAction(qs(sub->caption()));
        a->setObjectName(qs(sub->key()));
        connect(a, &QAction::triggered, this, [this, sub] { owner_.forward(sub, [](Tool& t) { t.sheet()->click(t); }); });
    }
}

QWidget* ToolCell::makeCheck() {
    auto* c = new QCheckBox(this);
    connect(c, &QCheckBox::clicked, this, [this] { owner_.forward(tool_, [](Tool& t) { t.sheet()->click(t); }); });
    return c;
}

// Auto-exclusive, so a screen reader hears a radio button; alone in its
// cell, it excludes nothing: the sheet decides which option is checked.
QWidget* ToolCell::makeOption() {
    auto* r = new QRadioButton(this);
    r->setAutoExclusive(true);
    connect(r, &QRadioButton::clicked, this, [this] { owner_.forward(tool_, [](Tool& t) { t.sheet()->click(t); }); });
    return r;
}

QWidget* ToolCell::makeList() {
    auto* box = new ListBox(this);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(box, &QComboBox::activated, this, [this](int index) {
        const auto& items = tool_->items();
        if (index < 0 || index >= static_cast<int>(items.size())) return;
        owner_.forward(items[static_cast<size_t>(index)].get(), [](Tool& t) { t.sheet()->click(t); });
    });
    // Typed text counts at once: a tool-bar click takes no focus, so waiting
    // for the edit to finish would lose it.
    connect(box->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        const std::string s = text.toStdString();
        owner_.forward(tool_, [&s](Tool& t) { t.sheet()->userEdit(t, s); });
    });
    return box;
}

QWidget* ToolCell::makeLabeled(QWidget* field) {
    auto* holder = new QWidget(this);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    caption_ = new QLabel(holder);
    caption_->setBuddy(field);
    field_ = field;
    row->addWidget(caption_);
    if (field) {
        field->setParent(holder);
        row->addWidget(field, 1);
    }
    return holder;
}

QWidget* ToolCell::makeTextBox() {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(objectName() + ".edit");
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        const std::string s = text.toStdString();
        owner_.forward(tool_, [&s](Tool& t) { t.sheet()->userEdit(t, s); });
    });
    // The dialog may refuse the edit when it starts, and judges it when it ends.
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        if (edit->isReadOnly() || !edit->isModified()) return;
        edit->setModified(false);
        owner_.forward(tool_, [](Tool& t) { t.sheet()->endEdit(t); });
    });
    return makeLabeled(edit);
}

QWidget* ToolCell::makeHeading() {
    auto* l = new QLabel(this);
    l->setTextFormat(Qt::PlainText);
    l->setAutoFillBackground(true);
    l->setContentsMargins(2, 2, 2, 2);
    return l;
}

QWidget* ToolCell::makeSeparator() {
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QWidget* ToolCell::makeLabel() {
    auto* l = toolbar_ ? new QLabel(this) : new WrapLabel(this);
    l->setTextFormat(Qt::PlainText);
    return l;
}

QWidget* ToolCell::makeIcon() { return nullptr; }

bool ToolCell::eventFilter(QObject* watched, QEvent* e) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched); edit && e->type() == QEvent::FocusIn) {
        bool allowed = true;
        owner_.forward(tool_, [&allowed](Tool& t) { allowed = t.sheet()->beginEdit(t); });
        edit->setReadOnly(!allowed);
    }
    if (watched == main_ && e->type() == QEvent::MouseButtonDblClick)
        owner_.forward(tool_, [](Tool& t) { t.sheet()->doubleClick(t); });
    if (watched == main_ && kind_ == Kind::Option && e->type() == QEvent::KeyPress)
        return arrowAsTab(static_cast<QKeyEvent*>(e)->key());
    return QWidget::eventFilter(watched, e);
}

// An auto-exclusive option alone in its cell would keep the arrows to
// itself; they move on to the next or back to the previous tool instead.
bool ToolCell::arrowAsTab(int key) {
    const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
    if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
    QKeyEvent tab(QEvent::KeyPress, back ? Qt::Key_Backtab : Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(main_, &tab);
    return true;
}

void ToolCell::refresh() {
    const Tool& t = *tool_;
    showAs(this, t.visible());
    setEnabled(t.enabled());
    setToolTip(qs(t.tip()));
    const QPixmap pm = ToolIcons::pixmap(t.image());
    const bool pictured = !pm.isNull() && kind_ != Kind::Button && kind_ != Kind::MenuButton && !press_;
    if (pictured && !icon_) makeImage();
    if (icon_) {
        icon_->setPixmap(pm);
        showAs(icon_, pictured);
    }
    if (press_) {
        press_->setIcon(ToolIcons::icon(t.image()));
        press_->setToolTip(qs(t.tip()));
        showAs(press_, !pm.isNull());
    }
    const QString caption = qs(t.caption());
    if (caption_) caption_->setText(caption);
    if (auto* b = qobject_cast<QAbstractButton*>(main_)) {
        QSignalBlocker block(b);
        // A button that shows a reading (the stopwatch) shows it after its caption.
        b->setText(kind_ == Kind::Button ? readingOf(t) : caption);
        if (kind_ == Kind::Button || kind_ == Kind::MenuButton) b->setIcon(ToolIcons::icon(t.image()));
        if (kind_ == Kind::Check) b->setChecked(t.checked());
        if (kind_ == Kind::Option) showOptionChecked(b, t.checked());
    }
    if (auto* l = qobject_cast<QLabel*>(main_)) l->setText(readingOf(t));
    if (kind_ == Kind::TextBox) {
        auto* edit = findChild<QLineEdit*>();
        if (edit && edit->text() != qs(t.text())) {
            QSignalBlocker block(edit);
            edit->setText(qs(t.text()));
        }
    }
    if (kind_ == Kind::List) refreshList();
    if (kind_ == Kind::MenuButton) refreshMenu();
    if (main_) refreshLook(main_);
    if (caption_) refreshLook(caption_);
    refreshAccessible();
}

// An auto-exclusive button refuses to uncheck itself; the sheet may.
void ToolCell::showOptionChecked(QAbstractButton* option, bool checked) {
    if (option->isChecked() == checked) return;
    option->setAutoExclusive(false);
    option->setChecked(checked);
    option->setAutoExclusive(true);
}

// Names and descriptions for screen readers: the control's own text is not
// always what it does (a picture, a reading, a field under a label).
void ToolCell::refreshAccessible() {
    const Tool& t = *tool_;
    const QString tip = qs(t.tip());
    const QString name = AccessibleText::nameOf(t);
    const QString state = AccessibleText::stateOf(t.image());
    const auto withState = [&state](const QString& n) { return state.isEmpty() ? n : n + ", " + state; };
    switch (kind_) {
    case Kind::Button:
    case Kind::MenuButton: {
        const QString reading = AccessibleText::clean(readingOf(t).toStdString());
        AccessibleText::set(main_, withState(reading.isEmpty() ? name : reading), tip);
        break;
    }
    case Kind::Check:
    case Kind::Option: AccessibleText::set(main_, name, tip); break;
    case Kind::List:
    case Kind::TextBox:
    case Kind::Hosted:
        AccessibleText::set(field_, name, tip);
        if (auto* box = qobject_cast<QComboBox*>(field_)) AccessibleText::set(box->lineEdit(), name, tip);
        if (press_) AccessibleText::set(press_, withState(name), tip);
        break;
    case Kind::Icon: {
        const QString said = state.isEmpty() ? name : state.left(1).toUpper() + state.mid(1);
        AccessibleText::set(icon_, tip.isEmpty() || tip == said ? said : said + ": " + tip, tip);
        break;
    }
    default: break;
    }
}

void ToolCell::refreshList() {
    auto* box = findChild<QComboBox*>();
    if (!box) return;
    QSignalBlocker block(box);
    const auto& items = tool_->items();
    if (box->count() != static_cast<int>(items.size())) {
        box->clear();
        QStringList captions;
        captions.reserve(static_cast<qsizetype>(items.size()));
        for (const auto& i : items) captions << qs(i->caption());
        box->addItems(captions);
    } else {
        for (int n = 0; n < box->count(); ++n) box->setItemText(n, qs(items[static_cast<size_t>(n)]->caption()));
    }
    if (box->currentText() != qs(tool_->text())) box->setEditText(qs(tool_->text()));
}

void ToolCell::refreshMenu() {
    const auto actions = menu_->actions();
    int n = 0;
    for (const auto& item : tool_->items()) {
        if (n >= actions.size()) break;
        QAction* a = actions[n++];
        if (a->isSeparator()) continue;
        a->setText(qs(item->caption()));
        a->setEnabled(item->enabled());
        a->setVisible(item->visible());
        a->setToolTip(qs(item->tip()));
        a->setIcon(ToolIcons::icon(item->image()));
    }
}

void ToolCell::refreshLook(QWidget* w) {
    QFont f = w->font();
    const bool bold = tool_->bold() || kind_ == Kind::Heading;
    if (f.bold() != bold) {
        f.setBold(bold);
        w->setFont(f);
    }
    // Only what the tool says of itself is fixed; the rest is the palette's.
    const QPalette& ours = palette();
    const QColor ink = ours.color(QPalette::WindowText);
    const QColor ground = ours.color(QPalette::Window);
    QPalette p = ours;
    if (const QColor own = foreColorOf(*tool_); own.isValid()) {
        const QColor fore = Shades::readable(own, ground, ink);
        for (auto group : {QPalette::Active, QPalette::Inactive})
            for (auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) p.setColor(group, role, fore);
    }
    if (kind_ == Kind::Heading) p.setColor(QPalette::Window, Shades::headingGround(ground, ink));
    if (w->palette() != p) w->setPalette(p);
}

void ToolCell::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() != QEvent::PaletteChange || !main_ || repainting_) return;
    repainting_ = true;
    refreshLook(main_);
    if (caption_) refreshLook(caption_);
    repainting_ = false;
}

}  // namespace qv
