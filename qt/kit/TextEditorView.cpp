#include "kit/TextEditorView.h"

#include <exception>
#include <memory>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTextBlock>

#include "kit/EnchantChecker.h"
#include "kit/QtText.h"
#include "kit/SpellHighlighter.h"
#include "toolkit/Ports.h"
#include "toolkit/SpellChecker.h"
#include "toolkit/TextEditor.h"

namespace qv {

namespace {
SpellChecker& sharedChecker() { return ports().spell ? *ports().spell : EnchantChecker::instance(); }

// Every spell editor shows a word the user added as right at once.
void rehighlightAll() {
    for (QWidget* w : QApplication::allWidgets())
        if (auto* editor = qobject_cast<TextEditorView*>(w)) editor->highlighter()->rehighlight();
}
}  // namespace

TextEditorView::TextEditorView(TextEditor& model, QWidget* parent)
    : QTextEdit(parent), model_(model), highlighter_(new SpellHighlighter(document(), sharedChecker())) {
    setObjectName(QString::fromStdString(model.name()));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    changed_ = EventLink(model.Changed, [this] { followModel(); });
    connect(this, &QTextEdit::textChanged, this, &TextEditorView::userTyped);
    followModel();
}

void TextEditorView::setSpellChecker(SpellChecker& checker) { highlighter_->setChecker(checker); }

void TextEditorView::followModel() {
    applying_ = true;
    QFont f(QString::fromStdString(model_.fontName()));
    if (model_.fontSize() > 0) f.setPointSizeF(model_.fontSize());
    f.setBold(model_.fontBold());
    if (font() != f) setFont(f);
    setReadOnly(model_.readOnly() || model_.locked());
    const QString text = QString::fromStdString(model_.text());
    if (toPlainText() != text) setPlainText(text);
    highlighter_->setOn(model_.spellCheckOn());
    applying_ = false;
}

void TextEditorView::userTyped() {
    if (applying_) return;
    try {
        model_.userEdit(toPlainText().toStdString());
    } catch (const std::exception& e) {
        qWarning("qv: %s: %s", model_.name().c_str(), e.what());
    }
}

QMenu* TextEditorView::contextMenuAt(const QPoint& at) {
    QMenu* menu = createStandardContextMenu(at);
    addSpelling(*menu, at);
    return menu;
}

void TextEditorView::contextMenuEvent(QContextMenuEvent* e) {
    std::unique_ptr<QMenu> menu(contextMenuAt(e->pos()));
    menu->exec(e->globalPos());
}

// A marked word gets its corrections and "Add to Dictionary" above the
// editing entries; a right word, or no dictionary, gets nothing more.
void TextEditorView::addSpelling(QMenu& menu, const QPoint& at) {
    if (isReadOnly() || !highlighter_->isOn() || !highlighter_->checker().available()) return;
    const QTextCursor spot = cursorForPosition(at);
    const QTextBlock block = spot.block();
    int start = 0;
    const QString word = highlighter_->misspeltAt(block.text(), spot.positionInBlock(), &start);
    if (word.isEmpty()) return;
    QAction* first = menu.actions().value(0);
    const auto replaceWith = [this, block, start, length = word.size()](const QString& with) {
        QTextCursor c(document());
        c.setPosition(block.position() + start);
        c.setPosition(block.position() + start + static_cast<int>(length), QTextCursor::KeepAnchor);
        c.insertText(with);
    };
    const std::vector<std::string> offers = highlighter_->checker().suggest(word.toStdString());
    for (const std::string& offer : offers) {
        auto* a = new QAction(QString::fromStdString(offer), &menu);
        connect(a, &QAction::triggered, this, [replaceWith, a] { replaceWith(a->text()); });
        menu.insertAction(first, a);
    }
    if (offers.empty()) {
        auto* none = new QAction(qtr("(No Suggestions)"), &menu);
        none->setEnabled(false);
        menu.insertAction(first, none);
    }
    auto* add = new QAction(qtr("Add to Dictionary"), &menu);
    add->setObjectName(QStringLiteral("addToDictionary"));
    connect(add, &QAction::triggered, this, [this, word] {
        highlighter_->checker().addToPersonal(word.toStdString());
        rehighlightAll();
    });
    menu.insertAction(first, add);
    menu.insertSeparator(first);
}

}  // namespace qv
