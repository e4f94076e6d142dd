// An open handle of Windows that closes itself.
#pragma once

#include <utility>
#include <windows.h>

namespace tidemark {

class Handle {
  public:
    explicit Handle(HANDLE handle) : handle_(handle) {}  // null or invalid: none
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    bool Is_open() const { return handle_ && handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

    // As CloseHandle(): false with the reason in GetLastError().
    bool Close() { return !Is_open() || CloseHandle(std::exchange(handle_, nullptr)); }

  private:
    HANDLE handle_;
};

}  // namespace tidemark
