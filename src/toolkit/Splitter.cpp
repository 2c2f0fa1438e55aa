#include "toolkit/Splitter.h"

#include <fstream>
#include <iterator>
#include <utility>

#include "toolkit/Failure.h"

namespace qv {

Splitter::Splitter(std::string name) : name_(std::move(name)) {}

Splitter::Pane& Splitter::addPane(const std::string& name, int32_t width, int32_t height) {
    Pane p;
    p.index = paneCount();
    p.name = name;
    p.width = p.defaultWidth = width;
    p.height = p.defaultHeight = height;
    panes_.push_back(p);
    Changed();
    return panes_.back();
}

const Splitter::Pane& Splitter::pane(int32_t index) const {
    if (index < 0 || index >= paneCount())
        throw Failure(err::SubscriptOutOfRange,
                      "Pane " + std::to_string(index) + " is not in splitter " + name_);
    return panes_[static_cast<std::size_t>(index)];
}

Splitter::Pane& Splitter::at(int32_t index) {
    return const_cast<Pane&>(std::as_const(*this).pane(index));
}

const Splitter::Pane* Splitter::paneNamed(const std::string& name) const {
    for (const auto& p : panes_)
        if (p.name == name) return &p;
    return nullptr;
}

void Splitter::setPaneWidth(int32_t index, int32_t width) {
    at(index).width = width;
    Changed();
}

void Splitter::setPaneHeight(int32_t index, int32_t height) {
    at(index).height = height;
    Changed();
}

void Splitter::setPaneMinimum(int32_t index, int32_t minWidth, int32_t minHeight) {
    Pane& p = at(index);
    p.minWidth = minWidth;
    p.minHeight = minHeight;
    Changed();
}

void Splitter::setPaneMinWidth(int32_t index, int32_t minWidth) {
    setPaneMinimum(index, minWidth, pane(index).minHeight);
}

void Splitter::setPaneMinHeight(int32_t index, int32_t minHeight) {
    setPaneMinimum(index, pane(index).minWidth, minHeight);
}

void Splitter::setPaneLocks(int32_t index, bool lockWidth, bool lockHeight) {
    Pane& p = at(index);
    p.lockWidth = lockWidth;
    p.lockHeight = lockHeight;
    Changed();
}

void Splitter::fixPaneHeight(int32_t index, int32_t height) {
    Pane& p = at(index);
    p.height = height;
    p.lockHeight = true;
    Changed();
}

void Splitter::resetToDefaults() {
    for (auto& p : panes_) {
        p.width = p.defaultWidth;
        p.height = p.defaultHeight;
    }
    layout_.clear();
    Changed();
}

// A layout the file holds already is not written again: an open and close
// that moved nothing writes nothing.
void Splitter::saveLayout(const std::string& path) {
    AboutToSave();
    if (std::ifstream in{path, std::ios::binary}) {
        const std::string stored((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (stored == layout_) return;
    }
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (out) out.write(layout_.data(), static_cast<std::streamsize>(layout_.size()));
    if (!out) throw Failure(err::PathNotFound, "Path not found: " + path);
}

void Splitter::loadLayout(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(err::FileNotFound, "File not found: " + path);
    layout_.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    LayoutLoaded();
}

}  // namespace qv
