#pragma once
// The widget of one tool inside a SheetWidget: a button, split button,
// check box, option, drop-down list, text box, heading, separator, label or
// a hosted control, with its image, tip, bold and colour.

#include <QColor>
#include <QWidget>

class QAbstractButton;
class QLabel;
class QToolButton;
class QMenu;

namespace qv {

class SheetWidget;
class Tool;

class ToolCell : public QWidget {
    Q_OBJECT
public:
    enum class Kind { Button, MenuButton, Check, Option, List, TextBox, Heading, Separator, Spacer, Label, Hosted, Icon };

    ToolCell(Tool& tool, SheetWidget& owner, int position, QWidget* parent = nullptr);

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] Tool* tool() const { return tool_; }
    // The widget the user works: the button, box or list.
    [[nodiscard]] QWidget* control() const { return main_; }
    // Shows the tool's present state without raising anything.
    void refresh();

    [[nodiscard]] static Kind kindOf(const Tool& tool, bool toolbar);
    [[nodiscard]] static QString objectNameOf(const Tool& tool, int position);
    // What a button or label reads: its caption, then its text (the stopwatch).
    [[nodiscard]] static QString readingOf(const Tool& tool);
    // The tool's own text colour, or an invalid colour for the palette's.
    [[nodiscard]] static QColor foreColorOf(const Tool& tool);

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    void build();
    void makeImage();
    QWidget* makeButton();
    QWidget* makeMenuButton();
    QWidget* makeCheck();
    QWidget* makeOption();
    QWidget* makeList();
    QWidget* makeLabeled(QWidget* field);
    QWidget* makeTextBox();
    QWidget* makeHeading();
    QWidget* makeSeparator();
    QWidget* makeLabel();
    QWidget* makeIcon();
    void fillMenu();
    void refreshMenu();
    void refreshList();
    void refreshLook(QWidget* w);
    void refreshAccessible();
    void showOptionChecked(QAbstractButton* option, bool checked);
    bool arrowAsTab(int key);

    Tool* tool_;
    SheetWidget& owner_;
    Kind kind_;
    bool toolbar_;
    QWidget* main_ = nullptr;
    QWidget* field_ = nullptr;  // the box a caption labels (a list, a text, a date)
    QLabel* caption_ = nullptr;
    QLabel* icon_ = nullptr;
    QToolButton* press_ = nullptr;  // a text tool's picture: a click on it clicks the tool
    QMenu* menu_ = nullptr;
    bool repainting_ = false;
};


}  // namespace qv
