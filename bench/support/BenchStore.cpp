#include "support/BenchStore.h"

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>

#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/Ports.h"

namespace qv::bench {

BenchStore::BenchStore(const std::string& name) {
    auto pattern = (std::filesystem::temp_directory_path() / ("quorvel-" + name + "-XXXXXX")).string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
    installStore(folder_);
    installSettingsFile(folder_);
    use();
}

BenchStore::~BenchStore() {
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

void BenchStore::use() {
    resetGlobals();
    g().AppPath = folder_;
    ports() = Ports{};
    ports().ui = &ui;
    ports().clock = &clock;
    ports().reporter = &reporter;
}

std::string BenchStore::storePath() const { return pathInFolder(folder_, kStoreFileName); }

}  // namespace qv::bench
