#include "view/DemoGuard.h"

#include <filesystem>
#include <fstream>
#include <set>

#include "installer/StoreFile.h"
#include "kit/QtText.h"
#include "store/StoreBackend.h"
#include "view/HostStore.h"

namespace qv {

namespace {

// A store file that is not there holds no tasks, and is not made by asking.
std::set<std::string> storedTasks(const std::string& folder) {
    const std::string location = storeLocationOf(folder);
    std::error_code ec;
    if (!isServerUri(location) && !std::filesystem::exists(location, ec)) return {};
    std::set<std::string> keys;
    for (const TaskRow& t : HostStore(folder).tasks(false)) keys.insert(t.guid);
    return keys;
}

}  // namespace

DemoGuard::DemoGuard(std::string folder) : folder_(std::move(folder)) {}

std::string DemoGuard::listPath() const { return folder_ + "/screenshots/demo-tasks.txt"; }

std::string DemoGuard::refusal() const {
    std::set<std::string> mine;
    std::ifstream in(listPath());
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) mine.insert(line);
    try {
        std::size_t foreign = 0;
        for (const std::string& key : storedTasks(folder_)) foreign += mine.count(key) == 0 ? 1 : 0;
        if (foreign == 0) return {};
        return qtrn(
                   "the store in %1 holds %2 task the demonstration did not make; it runs only on a fresh "
                   "folder (--home DIR)",
                   "the store in %1 holds %2 tasks the demonstration did not make; it runs only on a fresh "
                   "folder (--home DIR)",
                   foreign)
            .arg(QString::fromStdString(folder_), QString::number(foreign))
            .toStdString();
    } catch (const std::exception& e) {
        return qtr("the store in %1 can't be read (%2)")
            .arg(QString::fromStdString(folder_), e.what())
            .toStdString();
    }
}

void DemoGuard::remember() const {
    std::filesystem::create_directories(std::filesystem::path(listPath()).parent_path());
    std::ofstream out(listPath(), std::ios::trunc);
    for (const std::string& key : storedTasks(folder_)) out << key << "\n";
}

}  // namespace qv
