#pragma once
// A plain label of a dialog: a caption, shown or hidden, and how the
// caption is aligned. Views observe Changed.

#include <cstdint>
#include <string>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT Label {
public:
    enum Alignment : int32_t { AlignLeft = 0, AlignRight = 1, AlignCenter = 2 };

    explicit Label(std::string name = {}, std::string caption = {});
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& c);
    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool v);
    [[nodiscard]] int32_t alignment() const { return alignment_; }
    void setAlignment(int32_t a);

    Event<> Changed;

private:
    std::string name_;
    std::string caption_;
    bool visible_ = true;
    int32_t alignment_ = AlignLeft;
};

}  // namespace qv
