#pragma once
// The spell editor: a QTextEdit kept in step with a TextEditor model, with
// spelling marked as you type while the model's switch is on, and the
// corrections and "Add to Dictionary" of a marked word in its context menu.

#include <QTextEdit>

#include "kit/EventLink.h"

class QMenu;

namespace qv {

class SpellChecker;
class TextEditor;
class SpellHighlighter;

class TextEditorView : public QTextEdit {
    Q_OBJECT
public:
    explicit TextEditorView(TextEditor& model, QWidget* parent = nullptr);

    [[nodiscard]] TextEditor& model() const { return model_; }
    [[nodiscard]] SpellHighlighter* highlighter() const { return highlighter_; }
    // Another checker than the shared one of the user's language (tests).
    void setSpellChecker(SpellChecker& checker);
    // The context menu at a point of the viewport, as a right click shows
    // it; the caller owns it.
    [[nodiscard]] QMenu* contextMenuAt(const QPoint& at);

protected:
    void contextMenuEvent(QContextMenuEvent* e) override;

private:
    void followModel();
    void userTyped();
    void addSpelling(QMenu& menu, const QPoint& at);

    TextEditor& model_;
    SpellHighlighter* highlighter_;
    EventLink changed_;
    bool applying_ = false;
};

}  // namespace qv
