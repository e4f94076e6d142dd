// Other programs, as the rules ask for them. A program is started with a list of arguments that
// reach it as they are, blanks and quotes included: there is no shell in between.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tidemark {

struct Command {
    std::string Program;  // a full path, or a bare name to be looked for where programs are
    std::vector<std::string> Arguments;
    std::string Folder;  // to start it in; empty: the current folder

    bool operator==(const Command&) const = default;
};

// A program that has been started. It goes on by itself when this is forgotten.
class RunningProgram {
  public:
    virtual ~RunningProgram() = default;

    virtual bool Has_ended() = 0;
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
    // desktop has for it. False when that cannot be started.
    virtual bool Show_text(const std::string& path) = 0;

    // Shows a document, given by its address, in the program that the desktop has for it. False
    // when that cannot be started.
    virtual bool Show_document(const std::string& address) = 0;
};

// The machine's own programs. On a system that cannot run it by itself, what is made for Windows
// goes through wine, where that is installed.
class SystemPrograms : public Programs {
  public:
    ProgramStart Start(const Command& command) override;
    bool Show_text(const std::string& path) override;
    bool Show_document(const std::string& address) override;
};

}  // namespace tidemark
