#pragma once
// Opening the New Task dialog pre-filled from a Task Catalog item (mode 6).

#include <cstdint>
#include <string>

namespace qv {

class frmTask3;
class Recordset;

class NewTaskCatalogItem {
public:
    explicit NewTaskCatalogItem(frmTask3& f) : f_(f) {}

    // True after a complete fill; false when the item's checklist is gone.
    bool GetTaskCatTASK();

private:
    void fillTexts(Recordset& rs);
    void fillPicks(Recordset& rs);
    void fillTimeNeeded(Recordset& rs);
    void fillDeadline(Recordset& rs);
    void fillStatus(Recordset& rs);
    bool fillChecklist(Recordset& rs);
    bool linkChecklist(const std::string& key);

    frmTask3& f_;
};

}  // namespace qv
