#include "values/settings/SettingsSection.h"

#include "store/StoreQueries.h"
#include "store/clsSettings.h"
#include "toolkit/Failure.h"

namespace qv {

SettingsSection::SettingsSection(clsSettings& reader, const std::string& section) {
    reader.SetSQL(queries::settingsSection(section));
    reader.GetData(rs_);
    if (!rs_) throw Failure(err::ObjectRequired, "Object variable not set: section " + section);
}

SettingsSection::~SettingsSection() {
    try {
        if (rs_ && rs_->State() == adStateOpen) rs_->Close();
    } catch (...) {
        // Closing a read set must not turn into a second failure.
    }
}

}  // namespace qv
