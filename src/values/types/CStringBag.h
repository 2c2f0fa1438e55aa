#pragma once
// A text of KEY=value items, each closed by a tab, nothing between them.
// Keys are kept in upper case; values must not hold a tab. A key is found
// at the first place where "KEY=" stands, so a key that ends a longer key
// is found inside that one: keep keys clear of that case.

#include <string>

namespace qv {

class CStringBag {
public:
    [[nodiscard]] const std::string& Contents() const { return contents_; }
    void setContents(const std::string& text) { contents_ = text; }
    void Clear() { contents_.clear(); }

    // The value of the key, or the empty text when absent.
    [[nodiscard]] std::string ReadItem(const std::string& key) const;
    // Removes every copy of the key's item text.
    void RemoveItem(const std::string& key);
    // Replaces the key's item by one at the end.
    void WriteItem(const std::string& key, const std::string& value);

private:
    struct Found {
        std::size_t itemStart = std::string::npos;
        std::size_t valueStart = 0;
        std::size_t valueEnd = 0;  // the closing tab, or the end of a text that lost it
    };
    [[nodiscard]] Found find(const std::string& key) const;

    std::string contents_;
};

}  // namespace qv
