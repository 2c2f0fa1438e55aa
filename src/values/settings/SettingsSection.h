#pragma once
// One section of the table Settings, opened through a clsSettings reader in
// the display order, to be written, and closed when this object goes.

#include <cstdint>
#include <string>

#include "store/Recordset.h"

namespace qv {

class clsSettings;

class SettingsSection {
public:
    // Throws Failure(err::ObjectRequired) when the reader could not open it.
    SettingsSection(clsSettings& reader, const std::string& section);
    ~SettingsSection();
    SettingsSection(const SettingsSection&) = delete;
    SettingsSection& operator=(const SettingsSection&) = delete;


    [[nodiscard]] Recordset& rows() { return *rs_; }
    [[nodiscard]] int32_t count() { return rs_->RecordCount(); }
    // A field of the current row as text; null reads as empty.
    [[nodiscard]] std::string text(const char* field) { return rs_->Fields(field).value().toText(); }

private:
    RecordsetPtr rs_;
};

}  // namespace qv
