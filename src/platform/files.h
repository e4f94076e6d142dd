// Files, as the rules ask for them. Paths are UTF-8 on Windows, elsewhere the system's own bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tidemark {

// What became of a file operation: nothing to say, or the reason why it failed, in words.
class FileResult {
  public:
    static FileResult Done() { return {}; }
    static FileResult Failed(std::string reason) { return FileResult(std::move(reason)); }

    explicit operator bool() const { return !reason_; }
    const std::string& Reason() const { return *reason_; }  // only of a failure

  private:
    FileResult() = default;
    explicit FileResult(std::string reason) : reason_(std::move(reason)) {}

    std::optional<std::string> reason_;
};

class Files {
  public:
    virtual ~Files() = default;

    virtual bool Exists(const std::string& path) = 0;

    // The file of that path, or of one whose last part differs from it only in the case of its
    // letters A to Z; nothing when there is none.
    virtual std::optional<std::string> Find(const std::string& path) = 0;

    // The path from the root of the file system on; a path that is full already stays as it is.
    virtual std::string Full_path(const std::string& path) = 0;

    // Whether both paths lead to one file, however they are written. False when one is not there.
    virtual bool Is_same_file(const std::string& path, const std::string& other) = 0;

    // Bytes; nothing when there is no such file.
    virtual std::optional<std::uintmax_t> Size(const std::string& path) = 0;

    // Removes a file, never a folder.
    virtual FileResult Delete(const std::string& path) = 0;

    // Reads a regular file whole into `bytes`. Refuses anything else (a folder, a pipe, a device)
    // and any file of more than `limit` bytes, without waiting and without reading them.
    virtual FileResult Read(const std::string& path, std::uintmax_t limit, std::string& bytes) = 0;

    // The same of the file's first bytes, `most` at most, however long it is.
    virtual FileResult Read_start(const std::string& path, std::uintmax_t most,
                                  std::string& bytes) = 0;

    // Makes `bytes` the content of the file that the path leads to through links, whole or not at
    // all, and flushes it to the disk. Its owner, permissions, other names and attributes stay.
    // After a failure the old file is as it was (platform/replace_file.h). Refuses what is no
    // regular file, and one that may not be written.
    virtual FileResult Replace(const std::string& path, std::string_view bytes) = 0;
};

// The machine's own file system.
class DiskFiles : public Files {
  public:
    DiskFiles();
    bool Exists(const std::string& path) override;
    std::optional<std::string> Find(const std::string& path) override;
    std::string Full_path(const std::string& path) override;
    bool Is_same_file(const std::string& path, const std::string& other) override;
    std::optional<std::uintmax_t> Size(const std::string& path) override;
    FileResult Delete(const std::string& path) override;
    FileResult Read(const std::string& path, std::uintmax_t limit, std::string& bytes) override;
    FileResult Read_start(const std::string& path, std::uintmax_t most,
                          std::string& bytes) override;
    FileResult Replace(const std::string& path, std::string_view bytes) override;
};

}  // namespace tidemark
