// An open POSIX descriptor that closes itself.
#pragma once

#include <unistd.h>
#include <utility>

namespace tidemark {

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}  // -1: none
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept {
        Close();
        number_ = std::exchange(other.number_, -1);
        return *this;
    }
    ~Descriptor() { Close(); }

    bool Is_open() const { return number_ >= 0; }
    int Number() const { return number_; }

    // As ::close(): 0, or -1 with the reason in errno.
    int Close() { return Is_open() ? ::close(std::exchange(number_, -1)) : 0; }

  private:
    int number_;
};

}  // namespace tidemark
