// Counts how often SQLite waits for the disk, by the end of the file's name.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <sqlite3.h>

namespace velcro::test {

/// While it lives, databases that are opened are counted. One at a time.
class DiskWaits
{
public:
    DiskWaits()
        : usual_(sqlite3_vfs_find(nullptr))
        , counting_(*usual_) {
        current = this;
        counting_.zName = "counting";
        counting_.xOpen = open;
        sqlite3_vfs_register(&counting_, 1);
    }
    ~DiskWaits() {
        sqlite3_vfs_register(usual_, 1);
        sqlite3_vfs_unregister(&counting_);
        current = nullptr;
    }
    DiskWaits(const DiskWaits&) = delete;
    DiskWaits& operator=(const DiskWaits&) = delete;

    /// Waits since the last call, for files whose names end so.
    int taken(std::string_view nameEnd) {
        int count = 0;
        for (auto& [name, waits] : waits_) {
            if (std::string_view(name).ends_with(nameEnd)) {
                count += std::exchange(waits, 0);
            }
        }
        return count;
    }

private:
    struct Methods : sqlite3_io_methods
    {
        const sqlite3_io_methods* usual = nullptr;
        std::string name;
    };

    static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out) {
        const int code = current->usual_->xOpen(current->usual_, name, file, flags, out);
        if (code == SQLITE_OK && name != nullptr) {
            Methods& methods = current->methods_[name];
            static_cast<sqlite3_io_methods&>(methods) = *file->pMethods;
            methods.usual = file->pMethods;
            methods.name = name;
            methods.xSync = sync;
            file->pMethods = &methods;
        }
        return code;
    }
    static int sync(sqlite3_file* file, int flags) {
        const auto& methods = static_cast<const Methods&>(*file->pMethods);
        ++current->waits_[methods.name];
        return methods.usual->xSync(file, flags);
    }

    static inline DiskWaits* current = nullptr;
    sqlite3_vfs* usual_;
    sqlite3_vfs counting_;
    std::map<std::string, Methods> methods_;
    std::map<std::string, int> waits_;
};

} // namespace velcro::test
