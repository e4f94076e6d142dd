// Files, programs and variables of the test's own, for tests that really read or start something.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

namespace tidemark {

// Sets an environment variable until the test is over; one that was not set is then empty.
class Variable {
  public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* const before = std::getenv(name)) before_ = before;
        Set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { Set(before_.value_or("")); }

  private:
    void Set(const std::string& value) {
#ifdef _WIN32
        ::_putenv_s(name_, value.c_str());
#else
        ::setenv(name_, value.c_str(), 1);
#endif
    }

    const char* name_;
    std::optional<std::string> before_;
};

inline void Write_file(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string File_content(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// A file of the project's own, such as one that another is to be equal to.
inline std::string Source_file(const std::string& name) {
    return File_content(TIDEMARK_SOURCE_DIR "/" + name);
}

}  // namespace tidemark
