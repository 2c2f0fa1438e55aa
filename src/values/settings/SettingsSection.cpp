#include "values/settings/SettingsSection.h"

#include "store/StoreQueries.h"
#include "store/clsSettings.h"
#include "toolkit/Failure.h"
#include "values/types/Convert.h"

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

std::string SettingsSection::valueOrDefault() {
    std::string value = text("SetSettingValue");
    return value.empty() ? text("SetDefault") : value;
}

int32_t SettingsSection::windowValue() {
    const int32_t value = toLong(text("SetSettingValue"));
    return value >= 0 ? value : toLong(text("SetDefault"));
}

}  // namespace qv
