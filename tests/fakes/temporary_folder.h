// A folder that is gone with the test.
#pragma once

#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <system_error>

#include "fakes/comes_true.h"

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
    // Windows holds the folder of a program for a moment after its end.
    ~TemporaryFolder() {
        Comes_true([this] {
            std::error_code held;
            std::filesystem::remove_all(path_, held);
            return !held;
        });
    }

    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    auto Number_of_files() const {
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

  private:
    std::string path_;
};

// One that is the current folder meanwhile.
class WorkingFolder : public TemporaryFolder {
  public:
    WorkingFolder() { std::filesystem::current_path(Path()); }
    ~WorkingFolder() { std::filesystem::current_path(before_); }

  private:
    std::filesystem::path before_ = std::filesystem::current_path();
};

}  // namespace tidemark
