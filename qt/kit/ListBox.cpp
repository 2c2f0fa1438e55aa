#include "kit/ListBox.h"

#include <QCompleter>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QtMath>
#include <algorithm>

namespace qv {

namespace {

constexpr int kCharacters = 12;

// What the user does to a list that needs its completer or its pop-up.
bool reaches(QEvent::Type t) {
    switch (t) {
    case QEvent::FocusIn:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu: return true;
    default: return false;
    }
}

// Shown to the box in place of the completer it would make with its list
// when it gets its line edit, and taken back at once: one for the program,
// not one for every list of every window.
QCompleter* standIn() {
    static QPointer<QCompleter> completer;
    if (!completer) {
        completer = new QCompleter(QCoreApplication::instance());
        completer->setCompletionMode(QCompleter::InlineCompletion);
    }
    return completer;
}

}  // namespace

// Until wake() the edit has no completer; the box matches typed text
// without regard to case then as it does with the completer wake() gives.
ListBox::ListBox(QWidget* parent) : QComboBox(parent) {
    auto* edit = new QLineEdit(this);
    edit->setCompleter(standIn());
    setLineEdit(edit);
    edit->setCompleter(nullptr);
    edit->installEventFilter(this);
    setInsertPolicy(QComboBox::NoInsert);
    setMinimumContentsLength(kCharacters);
}

void ListBox::wake() {
    if (awake_) return;
    awake_ = true;
    // Told as the box tells the completer it makes itself.
    auto* completer = new QCompleter(model(), lineEdit());
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::InlineCompletion);
    completer->setCompletionColumn(modelColumn());
    setCompleter(completer);
    // Makes the pop-up; the hint it gives is the one shown until now.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

// The hint the box gives by a few characters with room for an icon, as
// the box itself would once its policy is set in wake().
QSize ListBox::restingHint() const {
    if (hint_.isValid()) return hint_;
    const QFontMetrics& fm = fontMetrics();
    const QSize icon = iconSize();
    QSize sh(minimumContentsLength() * fm.horizontalAdvance(QLatin1Char('X')) + icon.width() + 4,
             std::max(std::max(qCeil(QFontMetricsF(fm).height()), 14) + 2, icon.height() + 2));
    if (!placeholderText().isEmpty()) sh.setWidth(std::max(sh.width(), fm.boundingRect(placeholderText()).width()));
    QStyleOptionComboBox opt;
    initStyleOption(&opt);
    hint_ = style()->sizeFromContents(QStyle::CT_ComboBox, &opt, sh, this);
    return hint_;
}

QSize ListBox::sizeHint() const { return awake_ ? QComboBox::sizeHint() : restingHint(); }

QSize ListBox::minimumSizeHint() const { return awake_ ? QComboBox::minimumSizeHint() : restingHint(); }

void ListBox::showPopup() {
    wake();
    QComboBox::showPopup();
}

bool ListBox::event(QEvent* e) {
    if (!awake_ && reaches(e->type())) wake();
    return QComboBox::event(e);
}

bool ListBox::eventFilter(QObject* watched, QEvent* e) {
    if (!awake_ && watched == lineEdit() && reaches(e->type())) wake();
    return QComboBox::eventFilter(watched, e);
}

void ListBox::changeEvent(QEvent* e) {
    if (e->type() == QEvent::StyleChange || e->type() == QEvent::FontChange) hint_ = QSize();
    QComboBox::changeEvent(e);
}

}  // namespace qv
