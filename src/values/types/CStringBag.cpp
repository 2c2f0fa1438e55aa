#include "values/types/CStringBag.h"

#include "values/types/TextCase.h"

namespace qv {

CStringBag::Found CStringBag::find(const std::string& key) const {
    const std::string marker = TextCase::upper(key) + "=";
    Found f;
    f.itemStart = contents_.find(marker);
    if (f.itemStart == std::string::npos) return f;
    f.valueStart = f.itemStart + marker.size();
    f.valueEnd = contents_.find('\t', f.valueStart);
    if (f.valueEnd == std::string::npos) f.valueEnd = contents_.size();
    return f;
}

std::string CStringBag::ReadItem(const std::string& key) const {
    const Found f = find(key);
    if (f.itemStart == std::string::npos) return {};
    return contents_.substr(f.valueStart, f.valueEnd - f.valueStart);
}

void CStringBag::RemoveItem(const std::string& key) {
    const Found f = find(key);
    if (f.itemStart == std::string::npos) return;
    const std::size_t itemEnd = f.valueEnd < contents_.size() ? f.valueEnd + 1 : f.valueEnd;
    const std::string item = contents_.substr(f.itemStart, itemEnd - f.itemStart);
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = contents_.find(item); at != std::string::npos; at = contents_.find(item, from)) {
        out.append(contents_, from, at - from);
        from = at + item.size();
    }
    out.append(contents_, from, std::string::npos);
    contents_ = std::move(out);
}

void CStringBag::WriteItem(const std::string& key, const std::string& value) {
    // Each removal takes the found item out, so this ends.
    while (find(key).itemStart != std::string::npos) RemoveItem(key);
    contents_ += TextCase::upper(key) + "=" + value + "\t";
}

}  // namespace qv
