#pragma once
// Reads and writes the table Settings.

#include "store/DataSource.h"

namespace qv {

class clsSettings : public DataSource {
public:
    clsSettings();
    bool GetData(RecordsetPtr& rst);
};

}  // namespace qv
