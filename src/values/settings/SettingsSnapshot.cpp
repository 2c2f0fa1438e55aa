#include "values/settings/SettingsSnapshot.h"

#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsSettings.h"
#include "toolkit/Failure.h"

namespace qv {

SettingsSnapshot::SettingsSnapshot(clsSettings& reader, const std::vector<std::string>& sections) {
    read(reader, sections);
}

const SettingsSnapshot::Rows& SettingsSnapshot::rows(const std::string& section) const {
    static const Rows none;
    const auto found = sections_.find(section);
    return found == sections_.end() ? none : found->second;
}

void SettingsSnapshot::reread(clsSettings& reader, const std::string& section) {
    sections_.erase(section);
    read(reader, {section});
}

void SettingsSnapshot::read(clsSettings& reader, const std::vector<std::string>& sections) {
    RecordsetPtr rs;
    reader.SetSQL(queries::settingsSections(sections));
    reader.GetData(rs);
    if (!rs) throw Failure(err::ObjectRequired, "Object variable not set: the settings");
    const Field section = rs->Fields("SetSettingSection");
    const Field name = rs->Fields("SetSettingName");
    const Field value = rs->Fields("SetSettingValue");
    const Field fallback = rs->Fields("SetDefault");
    for (; !rs->EOF_(); rs->MoveNext())
        sections_[section.value().toText()].push_back({name.value(), value.value(), fallback.value()});
    rs->Close();
}

}  // namespace qv
