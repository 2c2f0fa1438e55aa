#pragma once
// The rows of the sections that a load of the settings reads, read in one
// statement through a clsSettings reader and closed at once; each
// section's rows apart, in display order.

#include <map>
#include <string>
#include <vector>

#include "values/types/Value.h"

namespace qv {

class clsSettings;

// One row of a section: SetSettingName, SetSettingValue and SetDefault.
struct StoredSetting {
    Value name;
    Value value;
    Value fallback;
};

class SettingsSnapshot {
public:
    using Rows = std::vector<StoredSetting>;

    // Throws Failure(err::ObjectRequired) when the reader could not open them.
    SettingsSnapshot(clsSettings& reader, const std::vector<std::string>& sections);

    // A section's rows; none for a section the store lacks.
    [[nodiscard]] const Rows& rows(const std::string& section) const;
    // Reads one section again, after rows were added to it.
    void reread(clsSettings& reader, const std::string& section);

private:
    void read(clsSettings& reader, const std::vector<std::string>& sections);

    std::map<std::string, Rows> sections_;
};

}  // namespace qv
