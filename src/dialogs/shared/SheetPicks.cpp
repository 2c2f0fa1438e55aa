#include "dialogs/shared/SheetPicks.h"

#include "dialogs/shared/TaskRecord.h"
#include "toolkit/Sheet.h"
#include "values/types/Convert.h"
#include "values/types/TaskUtil.h"

namespace qv {

void SheetPicks::uncheckAll(Sheet& sheet) {
    for (const auto& t : sheet.tools()) t->setChecked(false);
}

Tool* SheetPicks::checkedTool(const Sheet& sheet) {
    for (const auto& t : sheet.tools())
        if (t->checked()) return t.get();
    return nullptr;
}

int32_t SheetPicks::checkedTag(const Sheet& sheet) {
    const Tool* t = checkedTool(sheet);
    return t ? toLong(t->tag()) : kNothingChosen;
}

void SheetPicks::checkByTag(Sheet& sheet, int32_t value) {
    uncheckAll(sheet);
    const std::string tag = std::to_string(value);
    for (const auto& t : sheet.tools()) {
        if (t->tag() == tag) {
            t->setChecked(true);
            return;
        }
    }
}

bool SheetPicks::checkByKey(Sheet& sheet, const std::string& key) {
    for (const auto& t : sheet.tools()) {
        if (t->key() == key) {
            t->setChecked(true);
            return true;
        }
    }
    return false;
}

int32_t SheetPicks::listValue(Tool& list) {
    const Tool* item = GetItemSelected(list);
    return item ? toLong(item->tag()) : kNothingChosen;
}

void SheetPicks::setListValue(Tool& list, int32_t value) {
    const std::string tag = std::to_string(value);
    for (const auto& item : list.items()) {
        if (item->tag() == tag) {
            list.setText(item->caption());
            return;
        }
    }
}

void SheetPicks::fillList(Tool& list, const std::string& prefix, const std::vector<std::string>& words) {
    list.clearItems();
    for (size_t i = 0; i < words.size(); ++i)
        list.addItem(ttOption, prefix + std::to_string(i), words[i]).setTag(std::to_string(i));
}

void SheetPicks::fillOptions(Sheet& sheet, const std::string& prefix, const std::array<std::string, 5>& words) {
    sheet.removeAll();
    for (size_t i = 0; i < words.size(); ++i)
        sheet.add(ttOption, prefix + std::to_string(i), words[i]).setTag(std::to_string(i));
}

}  // namespace qv
