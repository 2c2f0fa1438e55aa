#pragma once
// Keeps what the user typed into a task dialog safe from any failure: a
// moment after each change the fields that differ from what the dialog
// loaded go into a draft file (DraftFile). A save that landed or a close
// without saving removes it; the error path, a crash or a kill leaves it,
// and the next open of the same task asks once whether to restore it. Yes
// replays the changes as the user's own edits, so the dialog's handlers
// judge them as they judged the typing.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/shared/DraftFile.h"
#include "toolkit/Timer.h"

namespace qv {

class Form;
class Sheet;
class TextEditor;
class DateBox;
class Tool;

// What of a dialog is the user's input. Restoring follows this order:
// editors, picks, texts, dates.
struct DraftInputs {
    struct Texts {
        Sheet* sheet;
        std::vector<std::string> keys;  // tools whose text the user types or picks from a list
    };
    std::vector<Sheet*> picks;  // sheets whose check and option tools the user ticks
    std::vector<Texts> texts;
    std::vector<DateBox*> dates;
    std::vector<TextEditor*> editors;
};

class DraftKeeper {
public:
    // How long after the last change the draft is written.
    static constexpr int32_t kDelayMs = 1000;

    // what: the question, %1 when the draft was saved (translated when asked).
    DraftKeeper(Form& form, const char* module, std::string what, DraftInputs inputs);
    ~DraftKeeper();
    DraftKeeper(const DraftKeeper&) = delete;
    DraftKeeper& operator=(const DraftKeeper&) = delete;

    // Offers the draft when the form is first shown: it is filled then.
    // taskKey gives the mode and key of the dialog at that moment.
    void offerWhenShown(std::function<std::pair<int32_t, std::string>()> taskKey);
    // Offers a kept draft of this task now, and keeps the user's changes
    // from here on.
    void offer(int32_t mode, const std::string& taskKey);
    // A save landed: the draft goes, and what the dialog shows is the new base.
    void saved();
    // saved() when landed; gives landed back, for `return drafts.after(save())`.
    bool after(bool landed) {
        if (landed) saved();
        return landed;
    }
    // The standard offer of a dialog that edits a stored row: the session's
    // mode and key when it is shown.
    void offerStoredRowWhenShown();

    // The key of a draft of the session's store.
    [[nodiscard]] static DraftKey keyOf(int32_t mode, const std::string& taskKey);

private:
    using Values = std::vector<std::pair<std::string, std::string>>;
    enum class Picks { all, ticked };

    void watch();
    void formChanged();
    [[nodiscard]] bool isInput(const Sheet& sheet, const Tool& tool) const;
    void userChanged();
    void writeNow();
    void closed();
    [[nodiscard]] Values snapshot(Picks which) const;
    [[nodiscard]] std::vector<DraftChange> changes() const;
    [[nodiscard]] bool differs(const Draft& draft) const;
    [[nodiscard]] bool ask(const Draft& draft) const;
    void restore(const Draft& draft);
    void apply(const DraftChange& change);
    [[nodiscard]] std::string valueOf(const std::string& field) const;
    [[nodiscard]] std::string when(double serial) const;

    Form& form_;
    const char* module_;
    std::string what_;
    DraftInputs inputs_;
    Timer delay_;
    DraftKey key_;
    Values base_;
    bool armed_ = false;
    bool restoring_ = false;
    bool shown_ = false;
    std::function<std::pair<int32_t, std::string>()> offerOnShow_;
    std::vector<std::function<void()>> unwatch_;
};

}  // namespace qv
