// Other programs, as the rules ask for them. A program is started with a list of arguments that
// reach it as they are, blanks and quotes included: there is no shell in between.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/patience.h"

namespace tidemark {

struct Command {
    std::string Program;  // a full path, or a bare name to be looked for where programs are
    std::vector<std::string> Arguments;
    std::string Folder;  // to start it in; empty: the current folder

    bool operator==(const Command&) const = default;
};

// How a program ended: by itself with a status, or by a signal. Both are 0 for success.
struct ProgramEnd {
    std::uint32_t Status = 0;
    int Signal = 0;

    bool Is_success() const { return Status == 0 && Signal == 0; }

    // What follows the program's name, such as "ended with the status 2".
    std::string Text() const {
        return Signal != 0 ? "was ended by the signal " + std::to_string(Signal)
                           : "ended with the status " + std::to_string(Status);
    }
};

// A program that has been started. It goes on by itself when this is forgotten.
class RunningProgram {
  public:
    virtual ~RunningProgram() = default;

    virtual std::optional<ProgramEnd> End() = 0;  // nothing while it runs
};

struct ProgramStart {
    std::unique_ptr<RunningProgram> Program;  // null when it could not be started
    std::string Advice;  // then what the user can do about it, where the system knows that
};

class Programs {
  public:
    virtual ~Programs() = default;

    // Starts a program without waiting for it.
    virtual ProgramStart Start(const Command& command) = 0;

    // Shows a text file, given by its full path, in a text editor: Notepad, or the one that the
    // desktop has for it. False when that cannot be started, or fails at once.
    virtual bool Show_text(const std::string& path) = 0;

    // Shows a document, given by its address, in the program that the desktop has for it. False
    // when that cannot be started, or fails at once.
    virtual bool Show_document(const std::string& address) = 0;
};

// The machine's own programs. On a system that cannot run it by itself, what is made for Windows
// goes through wine, where that is installed. Wine, and what a desktop opens things with, are
// watched for a second at most, since they may start well and have nothing to run.
class SystemPrograms : public Programs {
  public:
    explicit SystemPrograms(Patience& patience);
    ProgramStart Start(const Command& command) override;
    bool Show_text(const std::string& path) override;
    bool Show_document(const std::string& address) override;

  private:
    Patience& patience_;
};

}  // namespace tidemark
