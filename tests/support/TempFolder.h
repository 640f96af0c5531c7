// A fresh folder that goes with its test.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace velcro::test {

class TempFolder
{
public:
    TempFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("velcro-test-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored; // what cannot be removed is the system's to clean
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

} // namespace velcro::test
