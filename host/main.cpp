// The demo host: installs the store on first run, then runs the task
// manager window (or, with no display, a headless demonstration).

#include <filesystem>
#include <iostream>

#include "app/AppFolder.h"
#include "installer/StoreInstaller.h"

int main(int argc, char** argv) {
    const auto opts = qv::parseHostOptions(argc, argv);
    if (!opts.error.empty()) {
        std::cerr << "quorvel: " << opts.error << "\n";
        return 2;
    }
    try {
        std::filesystem::create_directories(opts.home);
        const bool made = qv::installStore(opts.home);
        if (made || !std::filesystem::exists(std::filesystem::path(opts.home) / "QuorvelSettings.txt"))
            qv::installSettingsFile(opts.home);
        if (opts.installStoreOnly) {
            std::cout << (made ? "Installed a fresh store in " : "The store stands already in ") << opts.home
                      << "\n";
            return 0;
        }
    } catch (const std::exception& e) {
        std::cerr << "quorvel: could not install the store in " << opts.home << ": " << e.what() << "\n";
        return 1;
    }
    std::cout << "Store ready in " << opts.home << "\n";
    return 0;
}
