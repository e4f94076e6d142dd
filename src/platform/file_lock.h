// A lock that ends with the process that holds it, however that ends.
#pragma once

#include <memory>
#include <string>

namespace tidemark {

// What keeps a lock held, in the system's own way.
class HeldFile {
  public:
    virtual ~HeldFile() = default;
};

class FileLock {
  public:
    FileLock() = default;  // holds nothing

    // Tries to take the lock of the file at `path`, which is made if it is not there. Does not
    // wait: nothing is held when another lock, of this process too, has it or when there can be no
    // file.
    explicit FileLock(const std::string& path);

    bool Is_held() const { return held_ != nullptr; }
    // Why it is not held, in words; nothing of the kind when another has it.
    const std::string& Reason() const { return reason_; }

    // Gives the lock up and takes its file away.
    void Remove();

  private:
    std::string path_, reason_;
    std::unique_ptr<HeldFile> held_;
};

}  // namespace tidemark
