#include "kit/PaneBuilder.h"

#include <QFont>
#include <QLabel>
#include <QVBoxLayout>

#include "kit/DateBoxView.h"
#include "kit/LabelView.h"
#include "kit/TextEditorView.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"

namespace qv {

QWidget* PaneBuilder::missing(const std::string& name) const {
    auto* w = new QWidget(parent_);
    w->setObjectName(QString::fromStdString(name));
    w->hide();
    return w;
}

QWidget* PaneBuilder::sheet(const std::string& name, SheetWidget::Style style) const {
    Sheet* s = form_.sheet(name);
    if (!s) return missing(name);
    Form* form = &form_;
    return new SheetWidget(*s, style, parent_, [form](const std::string& control, QWidget* parent) -> QWidget* {
        DateBox* box = form->dateBox(control);
        return box ? new DateBoxView(*box, parent) : nullptr;
    });
}

QWidget* PaneBuilder::editor(const std::string& name) const {
    TextEditor* e = form_.editor(name);
    return e ? static_cast<QWidget*>(new TextEditorView(*e, parent_)) : missing(name);
}

QWidget* PaneBuilder::label(const std::string& name) const {
    Label* l = form_.label(name);
    return l ? static_cast<QWidget*>(new LabelView(*l, parent_)) : missing(name);
}

QWidget* PaneBuilder::dateBox(const std::string& name) const {
    DateBox* d = form_.dateBox(name);
    return d ? static_cast<QWidget*>(new DateBoxView(*d, parent_)) : missing(name);
}

QWidget* PaneBuilder::editorPane(const std::string& labelName, const std::string& editorName,
                                 const std::string& toolbarName) const {
    auto* pane = new QWidget(parent_);
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(2);
    PaneBuilder inside(form_, pane);
    QWidget* caption = inside.label(labelName);
    QFont f = caption->font();
    f.setBold(true);
    caption->setFont(f);
    column->addWidget(caption);
    QWidget* editor = inside.editor(editorName);
    // A screen reader names the editor by its label.
    if (auto* label = qobject_cast<QLabel*>(caption)) label->setBuddy(editor);
    column->addWidget(editor, 1);
    if (!toolbarName.empty()) column->addWidget(inside.sheet(toolbarName, SheetWidget::Style::Toolbar));
    return pane;
}

}  // namespace qv
