#include "kit/TextEditorView.h"

#include <exception>

#include "kit/HunspellChecker.h"
#include "kit/SpellHighlighter.h"
#include "toolkit/TextEditor.h"

namespace qv {

TextEditorView::TextEditorView(TextEditor& model, QWidget* parent)
    : QTextEdit(parent), model_(model), highlighter_(new SpellHighlighter(document(), HunspellChecker::instance())) {
    setObjectName(QString::fromStdString(model.name()));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    changed_ = EventLink(model.Changed, [this] { followModel(); });
    connect(this, &QTextEdit::textChanged, this, &TextEditorView::userTyped);
    followModel();
}

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

}  // namespace qv
