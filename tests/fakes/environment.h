// Programs and variables of the test's own, for tests that really start something.
#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <thread>

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

// A file that can be executed.
inline void Write_program(const std::string& path, const std::string& content) {
    Write_file(path, content);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

// A program that writes the folder it runs in and its arguments into `record`, each on a line.
inline void Write_recorder(const std::string& path, const std::string& record) {
    Write_program(path, "#!/bin/sh\n{ pwd; for a in \"$@\"; do printf '%s\\n' \"$a\"; done; } > '" +
                            record + ".part'\nmv '" + record + ".part' '" + record + "'\n");
}

// Whether it comes true within ten seconds.
inline bool Comes_true(const std::function<bool()>& condition) {
    for (int look = 0; look < 1000; ++look) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

}  // namespace tidemark
