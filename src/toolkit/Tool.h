#pragma once
// One tool of a property sheet: a row addressed by key or by position.

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class Sheet;
class Tool;

// Gives a tool back to the pool of the sheet it was made in (or to the heap).
struct QV_EXPORT ToolRelease {
    std::pmr::memory_resource* pool = nullptr;
    void operator()(Tool* t) const noexcept;
};
using ToolPtr = std::unique_ptr<Tool, ToolRelease>;

// The numbers the sheet's add operation takes.
enum ToolType : int32_t {
    ttButton = 100,
    ttDropSeparator = 205,
    ttCheck = 501,
    ttOption = 901,
    ttSeparator = 1104,
    ttHeading = 1300,
    ttTextBox = 1400,
};

class QV_EXPORT Tool {
public:
    Tool(Sheet* sheet, Tool* parent, int32_t type, std::string key, std::string caption);
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

    // A tool made in pool (the heap when null): a sheet of thousands of
    // tools takes its memory in a few blocks and gives it back at once.
    [[nodiscard]] static ToolPtr make(std::pmr::memory_resource* pool, Sheet* sheet, Tool* parent, int32_t type,
                                      std::string key, std::string caption);

    [[nodiscard]] int32_t type() const { return type_; }
    [[nodiscard]] const std::string& key() const { return key_; }
    [[nodiscard]] Sheet* sheet() const { return sheet_; }
    [[nodiscard]] Tool* parent() const { return parent_; }

    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& c);
    [[nodiscard]] const std::string& text() const { return text_; }
    // Raises the sheet's Change with the property "Value" when the text changes.
    void setText(const std::string& t);
    [[nodiscard]] const std::string& tag() const { return tag_; }
    void setTag(const std::string& t) { tag_ = t; }
    [[nodiscard]] const std::string& tip() const { return extras_ ? extras_->tip : noText(); }
    void setTip(const std::string& t);
    [[nodiscard]] const std::string& image() const { return extras_ ? extras_->image : noText(); }
    void setImage(const std::string& i);

    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool e);
    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool v);
    [[nodiscard]] bool bold() const { return bold_; }
    void setBold(bool b);
    // A colour as a 32-bit RGB long (red in the low byte).
    [[nodiscard]] int32_t foreColor() const { return foreColor_; }
    void setForeColor(int32_t c);

    [[nodiscard]] bool checked() const { return checked_; }
    // Checking an option unchecks its sibling options; raises the sheet's Click.
    void setChecked(bool c);

    // The name of a control (a date box) hosted inside this tool; empty if none.
    [[nodiscard]] const std::string& hostedControl() const { return extras_ ? extras_->hosted : noText(); }
    void setHostedControl(const std::string& name);

    // Sub-items: entries of a drop-down list or a split button.
    Tool& addItem(int32_t type, std::string key, std::string caption);
    void clearItems();
    [[nodiscard]] const std::vector<ToolPtr>& items() const { return items_; }
    [[nodiscard]] Tool* item(const std::string& key) const;

private:
    // What few tools have: a long sheet's rows stay small without them.
    struct Extras {
        std::string tip;
        std::string image;
        std::string hosted;
    };

    void changed();
    Extras& extras();
    [[nodiscard]] static const std::string& noText();

    Sheet* sheet_;
    Tool* parent_;
    int32_t type_;
    std::string key_;
    std::string caption_;
    std::string text_;
    std::string tag_;
    std::unique_ptr<Extras> extras_;
    bool enabled_ = true;
    bool visible_ = true;
    bool bold_ = false;
    bool checked_ = false;
    int32_t foreColor_ = 0;
    std::vector<ToolPtr> items_;
};

}  // namespace qv
