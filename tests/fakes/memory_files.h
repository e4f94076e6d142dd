// Files that live in memory, so that tests can say what the disk does.
#pragma once

#include <map>
#include <set>
#include <strings.h>

#include "platform/files.h"

namespace tidemark {

class MemoryFiles : public Files {
  public:
    std::map<std::string, std::string> Content;
    std::string WriteError;  // when not empty, every write fails with it
    std::set<std::string> Undeletable;

    bool Exists(const std::string& path) override { return Content.contains(path); }

    std::optional<std::string> Find(const std::string& path) override {
        if (Exists(path)) return path;
        for (const auto& [name, content] : Content)
            if (strcasecmp(name.c_str(), path.c_str()) == 0) return name;
        return std::nullopt;
    }

    std::string Full_path(const std::string& path) override { return path; }

    std::optional<std::uintmax_t> Size(const std::string& path) override {
        if (!Exists(path)) return std::nullopt;
        return Content[path].size();
    }

    FileResult Delete(const std::string& path) override {
        if (Undeletable.contains(path)) return FileResult::Failed("Permission denied");
        return Content.erase(path) == 1 ? FileResult::Done()
                                        : FileResult::Failed("No such file or directory");
    }

    FileResult Read(const std::string& path, std::uintmax_t limit, std::string& bytes) override {
        if (!Exists(path)) return FileResult::Failed("No such file or directory");
        if (Content[path].size() > limit) return FileResult::Failed("File too large");
        bytes = Content[path];
        return FileResult::Done();
    }

    FileResult Replace(const std::string& path, std::string_view bytes) override {
        if (!WriteError.empty()) return FileResult::Failed(WriteError);
        Content[path] = bytes;
        return FileResult::Done();
    }
};

}  // namespace tidemark
