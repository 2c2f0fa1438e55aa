#pragma once
// A write-back that met another user's change: a field this save changes
// no longer holds the value read. Nothing of the row was written; the save
// may ask the user and then overwrite (Recordset::OverwriteStored).

#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Failure.h"

namespace qv {

class QV_EXPORT WriteConflict : public Failure {
public:
    WriteConflict(std::string table, std::vector<std::string> fields, const std::string& context)
        : Failure(err::StoreFailure, describe(table, fields, context), "Recordset"),
          table_(std::move(table)),
          fields_(std::move(fields)) {}

    [[nodiscard]] const std::string& table() const { return table_; }
    // The fields, named as the set names them.
    [[nodiscard]] const std::vector<std::string>& fields() const { return fields_; }

private:
    static std::string describe(const std::string& table, const std::vector<std::string>& fields,
                                const std::string& context) {
        std::string names;
        for (const auto& f : fields) names += (names.empty() ? "" : ", ") + f;
        return "Another user changed " + names + " of this row of table " + table + " since it was read (" +
               context + ")";
    }

    std::string table_;
    std::vector<std::string> fields_;
};

}  // namespace qv
