#include "toolkit/Translate.h"

#include <dlfcn.h>
#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <string_view>

namespace fs = std::filesystem;

namespace qv {
namespace {

// QUORVEL_LOCALEDIR first; then the build tree's catalogues when this code
// runs from the build tree; else the installed ones.
std::string findCatalogueFolder() {
    if (const char* env = std::getenv("QUORVEL_LOCALEDIR"); env && *env) return env;
#ifdef QV_BUILD_DIR
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&findCatalogueFolder), &info) && info.dli_fname) {
        std::error_code ec;
        const std::string self = fs::weakly_canonical(info.dli_fname, ec).string();
        const std::string build = QV_BUILD_DIR;
        if (!ec && self.compare(0, build.size(), build) == 0) return build + "/locale";
    }
#endif
#ifdef QV_LOCALE_DIR
    return QV_LOCALE_DIR;
#else
    return "/usr/share/locale";
#endif
}

void bindOnce() {
    static std::once_flag once;
    std::call_once(once, [] {
        bindtextdomain(kTextDomain, findCatalogueFolder().c_str());
        bind_textdomain_codeset(kTextDomain, "UTF-8");
    });
}

// The C and POSIX locales keep the English texts whatever LANGUAGE asks
// for: the C library's C.UTF-8 would otherwise follow it.
bool englishLocale() {
    const char* name = std::setlocale(LC_MESSAGES, nullptr);
    if (!name) return true;
    const std::string_view s(name);
    return s == "C" || s == "POSIX" || s.starts_with("C.");
}

}  // namespace

std::string tr(const char* english) {
    if (!english || !*english) return {};
    if (englishLocale()) return english;
    bindOnce();
    return dgettext(kTextDomain, english);
}

std::string trn(const char* one, const char* many, unsigned long n) {
    if (englishLocale()) return n == 1 ? one : many;
    bindOnce();
    return dngettext(kTextDomain, one, many, n);
}

std::string catalogueFolder() { return findCatalogueFolder(); }

}  // namespace qv
