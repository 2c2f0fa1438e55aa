#include "dialogs/shared/DraftFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace qv {

namespace {

constexpr const char* kMagic = "quorvel-draft 1";
constexpr std::size_t kMostBytes = 64u << 20;  // no draft is larger; a larger file is not one

uint64_t fnv1a(const std::string& text, uint64_t h = 14695981039346656037ull) {
    for (unsigned char c : text) {
        h ^= c;
        h *= 1099511628211ull;
    }
    return h;
}

std::string hex16(uint64_t v) {
    char buf[17];
    std::snprintf(buf, sizeof buf, "%016llx", static_cast<unsigned long long>(v));
    return buf;
}

// The store is named by a digest: a server's address stays out of the file.
std::string storeDigest(const std::string& store) {
    return hex16(fnv1a(store));
}

// Every byte that could split a line or a word is written %XX.
std::string escaped(const std::string& text) {
    static const char* digits = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (unsigned char c : text) {
        if (c <= ' ' || c == '%' || c == 0x7f) {
            out += '%';
            out += digits[c >> 4];
            out += digits[c & 15];
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::optional<std::string> unescaped(const std::string& word) {
    std::string out;
    out.reserve(word.size());
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%') {
            out += word[i];
            continue;
        }
        if (i + 2 >= word.size()) return std::nullopt;
        const int hi = hexDigit(word[i + 1]), lo = hexDigit(word[i + 2]);
        if (hi < 0 || lo < 0) return std::nullopt;
        out += static_cast<char>(hi * 16 + lo);
        i += 2;
    }
    return out;
}

// A text as one word: "=" and its escaped bytes, so that an empty text is a word too.
std::string word(const std::string& text) {
    return "=" + escaped(text);
}

std::optional<std::string> textOf(const std::string& w) {
    if (w.empty() || w[0] != '=') return std::nullopt;
    return unescaped(w.substr(1));
}

std::vector<std::string> wordsOf(const std::string& line) {
    // Split on single blanks only: no locale decides what else is one.
    std::vector<std::string> words;
    std::size_t start = 0;
    for (;;) {
        const auto blank = line.find(' ', start);
        words.push_back(line.substr(start, blank - start));
        if (blank == std::string::npos) return words;
        start = blank + 1;
    }
}

std::string serialText(double v) {
    char buf[32];
    const auto r = std::to_chars(buf, buf + sizeof buf, v);
    return std::string(buf, r.ptr);
}

std::optional<double> serialOf(const std::string& text) {
    double v = 0;
    const auto r = std::from_chars(text.data(), text.data() + text.size(), v);
    if (r.ec != std::errc{} || r.ptr != text.data() + text.size()) return std::nullopt;
    return v;
}

bool writeAll(int fd, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<std::size_t>(n);
    }
    return ::fsync(fd) == 0;
}

void syncFolder(const std::string& folder) {
    const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0) return;
    ::fsync(dir);
    ::close(dir);
}

bool makeFolder(const std::string& folder) {
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (!std::filesystem::is_directory(folder, ec)) return false;
    ::chmod(folder.c_str(), 0700);  // drafts hold what the user wrote
    return true;
}

}  // namespace

std::string DraftFile::folder() {
    // A relative XDG_STATE_HOME is to be ignored.
    std::string base;
    if (const char* state = std::getenv("XDG_STATE_HOME"); state && *state == '/') {
        base = state;
    } else if (const char* home = std::getenv("HOME"); home && *home) {
        base = std::string(home) + "/.local/state";
    } else {
        base = std::filesystem::temp_directory_path().string();
    }
    return base + "/quorvel/drafts";
}

std::string DraftFile::pathFor(const DraftKey& key) {
    const uint64_t h = fnv1a(key.task, fnv1a(std::to_string(key.mode) + '\n', fnv1a(key.store + '\n')));
    return folder() + "/" + std::to_string(key.mode) + "-" + hex16(h) + ".draft";
}

std::string DraftFile::encode(const Draft& draft) {
    std::string out = std::string(kMagic) + "\n";
    out += "store " + storeDigest(draft.key.store) + "\n";
    out += "mode " + std::to_string(draft.key.mode) + "\n";
    out += "task " + word(draft.key.task) + "\n";
    out += "saved " + serialText(draft.savedAt) + "\n";
    for (const auto& c : draft.changes)
        out += "change " + word(c.field) + " " + word(c.loaded) + " " + word(c.typed) + "\n";
    out += "end " + std::to_string(draft.changes.size()) + "\n";
    return out;
}

std::optional<Draft> DraftFile::decode(const std::string& text, const DraftKey& key) {
    std::istringstream in(text);
    std::string line;
    if (!std::getline(in, line) || line != kMagic) return std::nullopt;
    Draft d;
    d.key = key;
    bool ended = false, saved = false;
    int headers = 0;
    while (std::getline(in, line)) {
        if (ended) return std::nullopt;  // nothing may follow the end
        const auto w = wordsOf(line);
        if (w.size() == 2 && w[0] == "store" && headers == 0) {
            if (w[1] != storeDigest(key.store)) return std::nullopt;
            ++headers;
        } else if (w.size() == 2 && w[0] == "mode" && headers == 1) {
            if (w[1] != std::to_string(key.mode)) return std::nullopt;
            ++headers;
        } else if (w.size() == 2 && w[0] == "task" && headers == 2) {
            if (textOf(w[1]) != key.task) return std::nullopt;
            ++headers;
        } else if (w.size() == 2 && w[0] == "saved" && headers == 3) {
            const auto at = serialOf(w[1]);
            if (!at) return std::nullopt;
            d.savedAt = *at;
            saved = true;
        } else if (w.size() == 4 && w[0] == "change" && saved) {
            const auto field = textOf(w[1]), loaded = textOf(w[2]), typed = textOf(w[3]);
            if (!field || !loaded || !typed || field->empty()) return std::nullopt;
            d.changes.push_back({*field, *loaded, *typed});
        } else if (w.size() == 2 && w[0] == "end" && saved) {
            if (w[1] != std::to_string(d.changes.size())) return std::nullopt;
            ended = true;
        } else {
            return std::nullopt;
        }
    }
    if (!ended) return std::nullopt;
    return d;
}

std::optional<Draft> DraftFile::read(const DraftKey& key) {
    const std::string path = pathFor(key);
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) return std::nullopt;
    std::optional<Draft> draft;
    if (std::filesystem::file_size(path, ec) <= kMostBytes && !ec) {
        std::ifstream in(path, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        if (in || in.eof()) draft = decode(text, key);
    }
    if (!draft) std::filesystem::remove(path, ec);
    return draft;
}

bool DraftFile::write(const Draft& draft) {
    const std::string dir = folder();
    if (!makeFolder(dir)) return false;
    const std::string path = pathFor(draft.key);
    std::string part = path + ".XXXXXX";
    const int fd = ::mkostemp(part.data(), O_CLOEXEC);
    if (fd < 0) return false;
    const bool written = writeAll(fd, encode(draft));
    if (::close(fd) != 0 || !written || ::rename(part.c_str(), path.c_str()) != 0) {
        ::unlink(part.c_str());
        return false;
    }
    syncFolder(dir);
    return true;
}

void DraftFile::remove(const DraftKey& key) {
    const std::string path = pathFor(key);
    if (::unlink(path.c_str()) == 0) syncFolder(folder());
}

}  // namespace qv
