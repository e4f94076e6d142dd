// Files that live in memory, so that tests can say what the disk does.
#pragma once

#include <map>

#include "platform/files.h"

namespace tidemark {

class MemoryFiles : public Files {
  public:
    std::map<std::string, std::string> Content;
    std::string WriteError;  // when not empty, every write fails with it

    bool Exists(const std::string& path) override { return Content.contains(path); }

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
