#pragma once
// A save that met another user's change to a field it changes too: the
// user is asked, with the fields named, whether to put their values over
// the other user's. Yes saves again over them (the other user's changes to
// other fields stay); No saves nothing and leaves the dialog as it was.

#include <functional>
#include <string>
#include <vector>

namespace qv {

class SaveConflict {
public:
    // Runs save until it stands or the user declines: a WriteConflict asks
    // the question; on Yes overwrite() marks the rows and save runs again.
    // False when save returned false or the user answered No.
    static bool settle(const std::function<bool()>& save, const std::function<void()>& overwrite,
                       bool* declined = nullptr);
    // The question for the store's names of the fields.
    [[nodiscard]] static std::string question(const std::vector<std::string>& fields);
    // What the dialogs call a field of TASKS or TASKAPPTS.
    [[nodiscard]] static std::string caption(const std::string& field);
};

}  // namespace qv
