#include "installer/HelpPages.h"

#include <filesystem>

#include "toolkit/Failure.h"

namespace fs = std::filesystem;

namespace qv {

int installHelpPages(const std::string& folder, const std::string& source) {
    std::error_code ec;
    if (source.empty() || !fs::is_directory(source, ec)) return 0;
    const fs::path target = fs::path(folder) / "help";
    int copied = 0;
    for (const auto& entry : fs::recursive_directory_iterator(source, ec)) {
        if (!entry.is_regular_file()) continue;
        const fs::path to = target / fs::relative(entry.path(), source);
        if (fs::exists(to, ec)) continue;
        fs::create_directories(to.parent_path(), ec);
        if (!fs::copy_file(entry.path(), to, ec))
            throw Failure(err::PathNotFound, "Cannot install the help page " + to.string() + ": " + ec.message());
        ++copied;
    }
    return copied;
}

std::string helpPagesSource() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (!ec) {
        const fs::path installed = exe.parent_path() / ".." / "share" / "quorvel" / "help";
        if (fs::is_directory(installed, ec)) return fs::weakly_canonical(installed, ec).string();
    }
#ifdef QV_HELP_SOURCE_DIR
    return QV_HELP_SOURCE_DIR;
#else
    return {};
#endif
}

}  // namespace qv
