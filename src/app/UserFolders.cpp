#include "app/UserFolders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {
std::string UserFolder(const char* variable, const char* underHome) {
    const char* base = std::getenv(variable);
    if (base != nullptr && base[0] == '/') {
        return std::string(base) + "/harnwick";
    }
    const char* home = std::getenv("HOME");
    if (home != nullptr && home[0] == '/') {
        return std::string(home) + "/" + underHome + "/harnwick";
    }
    return {};
}
}  // namespace

std::string ConfigFolder() {
    return UserFolder("XDG_CONFIG_HOME", ".config");
}

std::string StateFolder() {
    return UserFolder("XDG_STATE_HOME", ".local/state");
}

std::string AbsolutePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}
