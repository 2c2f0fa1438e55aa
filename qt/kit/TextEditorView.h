#pragma once
// The spell editor: a QTextEdit kept in step with a TextEditor model, with
// spelling marked as you type while the model's switch is on.

#include <QTextEdit>

#include "kit/EventLink.h"

namespace qv {

class TextEditor;
class SpellHighlighter;

class TextEditorView : public QTextEdit {
    Q_OBJECT
public:
    explicit TextEditorView(TextEditor& model, QWidget* parent = nullptr);

    [[nodiscard]] TextEditor& model() const { return model_; }
    [[nodiscard]] SpellHighlighter* highlighter() const { return highlighter_; }

private:
    void followModel();
    void userTyped();

    TextEditor& model_;
    SpellHighlighter* highlighter_;
    EventLink changed_;
    bool applying_ = false;
};

}  // namespace qv
