#pragma once
// Task Appointments: the public class through which the host and the
// dialogs add and remove rows of TASKAPPTS in the set opened by GetDataKEY.

#include "Export.h"
#include "store/DataSource.h"
#include "values/types/Value.h"

namespace qv {

class QV_EXPORT clsTaskSchedule : public DataSource {
public:
    clsTaskSchedule();

    bool GetDataKEY(RecordsetPtr& rst);
    // Removes every row of the set whose key is TAGUID; false when none was.
    bool KillTA(const std::string& TAGUID);
    // diffImp: importance digit first, difficulty digit last.
    bool AddTA(const std::string& TAGUID, const std::string& taTaskGuid, const std::string& Project,
               const std::string& projectKey, Date Dstart, Date Dend, const std::string& desc,
               const std::string& diffImp);
};

}  // namespace qv
