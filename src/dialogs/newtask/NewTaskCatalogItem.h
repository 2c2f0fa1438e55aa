#pragma once
// Opening the New Task dialog pre-filled from a Task Catalog item (mode 6).

#include <cstdint>
#include <string>

namespace qv {

class frmTask3;
class StoredRow;

class NewTaskCatalogItem {
public:
    explicit NewTaskCatalogItem(frmTask3& f) : f_(f) {}

    // True after a complete fill; false when the item's checklist is gone.
    bool GetTaskCatTASK();

private:
    void fillTexts(StoredRow& rs);
    void fillPicks(StoredRow& rs);
    void fillTimeNeeded(StoredRow& rs);
    void fillDeadline(StoredRow& rs);
    void fillStatus(StoredRow& rs);
    bool fillChecklist(StoredRow& rs);
    bool linkChecklist(const std::string& key);

    frmTask3& f_;
};

}  // namespace qv
