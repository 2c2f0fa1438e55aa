#include "store/ADOCode.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/StoreBackend.h"
#include "toolkit/Failure.h"
#include "toolkit/MessageText.h"
#include "toolkit/Ports.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

constexpr const char* kCrLf = "\r\n";
constexpr int32_t kPathFileAccessError = 75;
constexpr int32_t kDiskFull = 61;

// The sentence of a settings file that could not be written for want of
// room: the session's store requests end in it, not in a missing file.
std::string& settingsWriteFault() {
    static std::string sentence;
    return sentence;
}

std::string settingsPath() {
    return pathInFolder(g().AppPath, kSettingsFileName);
}
std::string defaultStorePath() {
    return pathInFolder(g().AppPath, kStoreFileName);
}

bool fileExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

std::string readWholeFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(err::FileNotFound, "File not found: " + path);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) throw Failure(kPathFileAccessError, "Path/File access error: " + path);
    return text;
}

[[noreturn]] void accessError(const std::string& path) {
    throw Failure(kPathFileAccessError, "Path/File access error: " + cutForMessage(path));
}

// A write that found no room says so; anything else is an access error.
[[noreturn]] void writeError(const std::string& path, int error) {
    if (error == ENOSPC || error == EDQUOT)
        throw Failure(kDiskFull, fill(tr("The Quorvel settings file \"%1\" can't be written: the disk is full."),
                                      {cutForMessage(path)}));
    accessError(path);
}

// Writes text to path whole or not at all: into a file beside it, to the
// disk, then renamed over the old one, so a crash leaves the old file or
// the new, never an empty one.
void replaceFile(const std::string& path, const std::string& text) {
    const std::string part = path + ".part";
    const int fd = ::open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) writeError(path, errno);
    size_t done = 0;
    int error = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            error = n < 0 ? errno : ENOSPC;
            break;
        }
        done += static_cast<size_t>(n);
    }
    bool written = done == text.size();
    if (written && ::fsync(fd) != 0) {
        error = errno;
        written = false;
    }
    if (::close(fd) != 0 && written) {
        error = errno;
        written = false;
    }
    if (!written || ::rename(part.c_str(), path.c_str()) != 0) {
        if (written) error = errno;
        ::unlink(part.c_str());
        writeError(path, error);
    }
    // The rename itself reaches the disk with its folder.
    const auto slash = path.find_last_of('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, std::max<size_t>(slash, 1));
    const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
}

// Lines ended by a bare LF read as the same lines ended by CR LF, the shape
// the DBLoc arithmetic takes.
std::string withCrLf(const std::string& text) {
    std::string out;
    out.reserve(text.size() + 8);
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) out += '\r';
        out += text[i];
    }
    return out;
}

// 1-based position of what in text, searching from start; 0 when absent.
size_t inStr(size_t start, const std::string& text, const std::string& what) {
    if (start < 1) start = 1;
    if (start > text.size()) return 0;
    const auto at = text.find(what, start - 1);
    return at == std::string::npos ? 0 : at + 1;
}

// Characters from a 1-based start; a negative length gives nothing.
std::string mid(const std::string& text, long long start, long long length) {
    if (length <= 0 || start < 1 || static_cast<size_t>(start) > text.size()) return {};
    return text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(length));
}

// The path between the DBLoc tags. The arithmetic takes the shape that
// saveTheLoc writes: the tag, CR LF, the path, CR LF, the closing tag.
std::string dbLocFrom(const std::string& text) {
    const auto p = static_cast<long long>(inStr(1, text, "<DBLoc>"));
    const auto q = static_cast<long long>(inStr(static_cast<size_t>(p + 8), text, "</DBLoc>"));
    return mid(text, p + 9, q - p - 11);
}

std::string lostStoreMessage(const std::string& path) {
    return fill(tr("The Quorvel data file, \"%1\", could not be found."), {cutForMessage(path)}) + kCrLf +
           tr("Without this file, Quorvel cannot work.") + kCrLf + kCrLf +
           fill(tr("Quorvel will now check in %1 in hopes of locating the originally installed datafile "
                   "(QuorvelData.mdb)."),
                {cutForMessage(g().AppPath)});
}

std::string settingsFileMessage() {
    return fill(tr("The Quorvel settings file, \"QuorvelSettings.txt\", could not be found in (\"%1\" )."),
                {cutForMessage(g().AppPath)}) +
           kCrLf +
           tr("Without this file, Quorvel cannot determine where its database resides. Please find "
              "this file and put it back!");
}

void pointAtDefaultStore() {
    g().DBLocation = defaultStorePath();
    saveTheLoc();
}

bool locateStore() {
    int retries = 0;
    std::string path;
    for (;;) {
        if (retries == 2) return false;
        if (!fileExists(settingsPath())) pointAtDefaultStore();
        path = dbLocationIn(readWholeFile(settingsPath()));
        // A server is not looked for here: its first open says whether it answers.
        if (isServerUri(path) || fileExists(path)) break;
        ++retries;
        ui().msgBox(lostStoreMessage(path), vbCritical, kProgramTitle);
        pointAtDefaultStore();
    }
    g().ConnString = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";";
    SetConnStringSHAPED(path);
    g().DBLocation = path;
    return true;
}

}  // namespace

bool ADOTest() {
    settingsWriteFault().clear();
    try {
        return locateStore();
    } catch (const Failure& f) {
        if (f.number() == kDiskFull) {
            // Told once, by the request that needed the store.
            settingsWriteFault() = f.description();
            return false;
        }
        if (ports().ui) ui().msgBox(settingsFileMessage(), vbCritical, kProgramTitle);
        return false;
    } catch (...) {
        // Any file fault ends in the one message; the next data request retries.
        if (ports().ui) ui().msgBox(settingsFileMessage(), vbCritical, kProgramTitle);
        return false;
    }
}

std::string dbLocationIn(const std::string& settingsText) {
    return dbLocFrom(withCrLf(settingsText));
}

void locateSessionStore() {
    if (errorPathTaken()) throw Failure(err::StoreFailure, "The session has ended on an earlier fault.");
    if (!g().ConnString.empty() || ADOTest()) return;
    if (!settingsWriteFault().empty()) throw Failure(err::StoreFailure, settingsWriteFault());
    if (g().DBLocation.empty())
        throw Failure(err::StoreFailure, "The Quorvel data file could not be located.");
    throw Failure(err::StoreFailure, "The Quorvel data file \"" + cutForMessage(g().DBLocation) + "\" is missing.");
}

void saveTheLoc() {
    writeSettingsFile(g().AppPath, g().DBLocation);
}

void SetConnStringSHAPED(const std::string& path) {
    g().ConnStringShaped =
        "Provider=MSDataShape; Data Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";";
}

std::string pathInFolder(const std::string& folder, const std::string& name) {
    if (!folder.empty() && folder.back() == '/') return folder + name;
    return folder + "/" + name;
}

void writeSettingsFile(const std::string& folder, const std::string& dbPath) {
    replaceFile(pathInFolder(folder, kSettingsFileName), std::string("<Quorvel>") + kCrLf + "<DBLoc>" +
                                                             kCrLf + dbPath + kCrLf + "</DBLoc>" + kCrLf +
                                                             "</Quorvel>" + kCrLf);
}

}  // namespace qv
