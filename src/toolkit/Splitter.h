#pragma once
// A splitter of panes, counted from 0, with sizes and limits in twips. Its
// layout is an opaque blob that the desktop view fills and restores; the
// splitter saves it to and loads it from a layout file as it is.

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT Splitter {
public:
    struct Pane {
        int32_t index = 0;
        std::string name;
        int32_t width = 0, height = 0;
        int32_t minWidth = 0, minHeight = 0;
        bool lockWidth = false, lockHeight = false;
        int32_t defaultWidth = 0, defaultHeight = 0;
    };

    explicit Splitter(std::string name = {});
    Splitter(const Splitter&) = delete;
    Splitter& operator=(const Splitter&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    // Adds the next pane; its size now is its default size.
    Pane& addPane(const std::string& name, int32_t width = 0, int32_t height = 0);
    [[nodiscard]] int32_t paneCount() const { return static_cast<int32_t>(panes_.size()); }
    // Throws Failure when there is no such pane.
    [[nodiscard]] const Pane& pane(int32_t index) const;
    [[nodiscard]] const Pane* paneNamed(const std::string& name) const;

    void setPaneWidth(int32_t index, int32_t width);
    void setPaneHeight(int32_t index, int32_t height);
    void setPaneMinimum(int32_t index, int32_t minWidth, int32_t minHeight);
    void setPaneMinWidth(int32_t index, int32_t minWidth);
    void setPaneMinHeight(int32_t index, int32_t minHeight);
    void setPaneLocks(int32_t index, bool lockWidth, bool lockHeight);
    // Height fixed: set and locked.
    void fixPaneHeight(int32_t index, int32_t height);
    // Every pane back to its default size, the stored arrangement forgotten.
    void resetToDefaults();

    [[nodiscard]] const std::string& layoutState() const { return layout_; }
    // The view's saved arrangement.
    void setLayoutState(const std::string& blob) { layout_ = blob; }
    // Writes the blob whole. Throws Failure when the file can't be written.
    void saveLayout(const std::string& path);
    // Reads the blob whole. Throws Failure when the file can't be read.
    void loadLayout(const std::string& path);

    // Around a load the panes' clients are detached and attached again; the
    // model has no clients to lose, so these only mark the places.
    void clearPaneFlags() {}
    void setPaneFlags() {}

    // The user finished dragging a bar, as the view reports it.
    void userEndDrag() { EndDrag(); }

    Event<> EndDrag;       // the user finished dragging
    Event<> AboutToSave;   // views put their arrangement in the blob now
    Event<> LayoutLoaded;  // views restore the arrangement from the blob
    Event<> Changed;       // sizes or limits changed

private:
    Pane& at(int32_t index);

    std::string name_;
    std::vector<Pane> panes_;
    std::string layout_;
};

}  // namespace qv
