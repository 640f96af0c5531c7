#include "platform/sqlserver/odbc/DriverChoice.h"

#include <filesystem>

namespace velcro::sql::odbc {

std::optional<std::string> findFreeTdsLibrary() {
    namespace fs = std::filesystem;
    std::error_code ignored; // a folder that cannot be read holds no driver for us
    for (const fs::path root : {"/usr/local/lib", "/usr/lib", "/usr/lib64"}) {
        std::vector<fs::path> folders{root, root / "odbc"};
        for (const auto& entry : fs::directory_iterator(root, ignored)) {
            if (entry.path().filename().string().ends_with("-linux-gnu")) {
                folders.insert(folders.end(), {entry.path() / "odbc", entry.path()});
            }
        }
        for (const auto& folder : folders) {
            if (fs::exists(folder / "libtdsodbc.so", ignored)) {
                return (folder / "libtdsodbc.so").string();
            }
        }
    }
    return std::nullopt;
}

} // namespace velcro::sql::odbc
