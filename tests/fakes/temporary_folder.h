// A folder that is gone with the test.
#pragma once

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace tidemark {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        do {
            const std::string name = "tidemark-" + std::to_string(random());
            path_ = (std::filesystem::temp_directory_path() / name).string();
        } while (!std::filesystem::create_directory(path_));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    // The names in the folder, sorted.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    std::string path_;
};

}  // namespace tidemark
