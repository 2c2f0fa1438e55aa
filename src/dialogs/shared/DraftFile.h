#pragma once
// A draft on the disk: what the user changed in a task dialog, kept in a
// small text file under the state folder ($XDG_STATE_HOME/quorvel/drafts,
// by default ~/.local/state/quorvel/drafts). Written whole or not at all
// (a file beside it, flushed, renamed over the old one); a file that does
// not read back whole is ignored and removed.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qv {

// One field the user changed: its value as the dialog loaded it and as
// the user left it.
struct DraftChange {
    std::string field;
    std::string loaded;
    std::string typed;
    bool operator==(const DraftChange&) const = default;
};

// Whose draft it is: the store (its location), the dialog's mode and the
// task (or appointment) key; one draft per triple.
struct DraftKey {
    std::string store;
    int32_t mode = 0;
    std::string task;
};

struct Draft {
    DraftKey key;
    double savedAt = 0;  // day serial of the last write
    std::vector<DraftChange> changes;
};

class DraftFile {
public:
    // The folder of the drafts; it is made (only for the user) on the first write.
    [[nodiscard]] static std::string folder();
    [[nodiscard]] static std::string pathFor(const DraftKey& key);

    // The file's text, and a draft of such a text; nothing for a damaged
    // text or one of another key.
    [[nodiscard]] static std::string encode(const Draft& draft);
    [[nodiscard]] static std::optional<Draft> decode(const std::string& text, const DraftKey& key);

    // The draft of key, if one is kept; a damaged file is removed.
    [[nodiscard]] static std::optional<Draft> read(const DraftKey& key);
    // False when it could not be written (a full disk): the older draft stays.
    static bool write(const Draft& draft);
    static void remove(const DraftKey& key);
};

}  // namespace qv
