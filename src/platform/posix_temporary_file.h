// The temporary file of a save, and those that killed saves have left behind.
#pragma once

#include <string>

#include "platform/posix_descriptor.h"

namespace tidemark {

// A new file in a folder, named as no user names his, that removes itself unless it has been
// renamed. It is held under a lock as long as this lives, closed or not: whoever can lock such a
// file finds one that was left behind.
class TemporaryFile {
  public:
    // `folder` ends in a slash. Not open when there can be none; the reason is in errno.
    explicit TemporaryFile(const std::string& folder);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    Descriptor& Opened() { return file_; }

    // The letters that make its name its own.
    std::string Suffix() const;

    // As ::rename(): false with the reason in errno.
    bool Rename(const std::string& path);

  private:
    bool Hold();

    std::string name_;
    Descriptor file_;
    Descriptor lock_;
    bool renamed_ = false;
};

// Removes those that were left behind in a folder and can be removed.
void Remove_left_temporary_files(const std::string& folder);

}  // namespace tidemark
