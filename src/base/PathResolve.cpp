#include "base/PathResolve.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/PathText.h"

namespace fs = std::filesystem;

namespace {

bool Exists(const std::string& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

char32_t FoldCase(char32_t c) {
    if ((c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) {
        return c + 0x20;
    }
    switch (c) {
        case 0x0160:  // Š
        case 0x0152:  // Œ
        case 0x017D:  // Ž
            return c + 1;
        case 0x0178:  // Ÿ
            return 0xFF;
        default:
            return c;
    }
}

std::u32string Folded(std::string_view name) {
    std::u32string text = PathToUnicode(name);
    for (char32_t& c : text) {
        c = FoldCase(c);
    }
    return text;
}

std::string Join(const std::string& folder, std::string_view name) {
    if (folder.empty()) {
        return std::string(name);
    }
    return folder.back() == '/' ? folder + std::string(name) : folder + '/' + std::string(name);
}

// The entry of folder named name but for letter case; none when there is no such entry.
std::optional<std::string> FindEntry(const std::string& folder, std::string_view name) {
    const std::u32string wanted = Folded(name);
    std::optional<std::string> best;
    std::error_code error;
    fs::directory_iterator it(folder.empty() ? "." : folder, error);
    for (; !error && it != fs::directory_iterator(); it.increment(error)) {
        std::string entry = it->path().filename().string();
        if ((!best || entry < *best) && Folded(entry) == wanted) {
            best = std::move(entry);
        }
    }
    return best;
}

// The stored path with its parts found one by one; the last part is kept as stored when
// lastMayBeMissing and it is not found. None when a part is not found.
std::optional<std::string> Walk(const std::string& stored, bool lastMayBeMissing) {
    std::vector<std::string_view> parts;
    const std::string_view text(stored);
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find_first_of("/\\", start), text.size());
        if (end > start && text.substr(start, end - start) != ".") {
            parts.push_back(text.substr(start, end - start));
        }
        start = end + 1;
    }
    if (parts.empty()) {
        return std::nullopt;
    }
    std::string path = stored.front() == '/' || stored.front() == '\\' ? "/" : "";
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string exact = Join(path, parts[i]);
        if (parts[i] == ".." || Exists(exact)) {
            path = exact;
            continue;
        }
        if (std::optional<std::string> entry = FindEntry(path, parts[i])) {
            path = Join(path, *entry);
        } else if (lastMayBeMissing && i + 1 == parts.size()) {
            path = exact;
        } else {
            return std::nullopt;
        }
    }
    return path;
}

// No file can be named with a NUL byte (the system would cut the name at it), and the system
// opens no path as long as PATH_MAX.
bool Resolvable(const std::string& stored) {
    constexpr std::size_t kPathMax = 4096;
    return !stored.empty() && stored.size() < kPathMax && stored.find('\0') == std::string::npos &&
           !Exists(stored);
}

}  // namespace

std::string ResolvePath(const std::string& stored) {
    if (!Resolvable(stored)) {
        return stored;
    }
    return Walk(stored, false).value_or(stored);
}

std::string ResolvePathToWrite(const std::string& stored) {
    if (!Resolvable(stored)) {
        return stored;
    }
    return Walk(stored, true).value_or(stored);
}
