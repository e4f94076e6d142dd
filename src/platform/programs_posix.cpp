// Programs by way of POSIX calls, and of Linux's descriptors for processes.
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <optional>
#include <poll.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix_descriptor.h"
#include "platform/programs.h"

namespace tidemark {

namespace {

class RunningProcess : public RunningProgram {
  public:
    explicit RunningProcess(pid_t process)
        : process_(static_cast<int>(::syscall(SYS_pidfd_open, process, 0))) {}

    // A process that could not be opened any more is gone.
    bool Has_ended() override {
        pollfd ended{process_.Number(), POLLIN, 0};
        return !process_.Is_open() || ::poll(&ended, 1, 0) > 0;
    }

  private:
    Descriptor process_;
};

// What the started process tells its starter: its number, and after it the reason when it could not
// become the program. Nothing when there is no such process.
struct Report {
    pid_t Process = 0;
    int Error = 0;
};

// Everything that the new process needs, made before it exists: between fork and exec nothing may
// be allocated.
class Launch {
  public:
    Launch(const std::string& executable, const Command& command)
        : executable_(executable.c_str()), folder_(command.Folder.c_str()) {
        arguments_.push_back(const_cast<char*>(executable_));
        for (const std::string& argument : command.Arguments)
            arguments_.push_back(const_cast<char*>(argument.c_str()));
        arguments_.push_back(nullptr);
    }

    // Starts the program from a process in between that ends at once: the program is then nobody's
    // child that would have to be waited for.
    [[noreturn]] void Run_in_between(int report) const {
        ::setsid();  // what is typed into our terminal is not meant for the program
        const pid_t process = ::fork();
        if (process == 0) Become_program(report);
        ::_exit(process < 0 ? 127 : 0);
    }

  private:
    static void Tell(int report, int value) {
        [[maybe_unused]] const ssize_t written = ::write(report, &value, sizeof value);
    }

    // The program gets the signals, the input and the descriptors that any new program has.
    [[noreturn]] void Become_program(int report) const {
        Tell(report, ::getpid());
        for (const int number : {SIGPIPE, SIGXFSZ}) ::signal(number, SIG_DFL);
        sigset_t none;
        ::sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        if (const int nothing = ::open("/dev/null", O_RDONLY); nothing >= 0)
            ::dup2(nothing, STDIN_FILENO);
        ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
        if (*folder_ == '\0' || ::chdir(folder_) == 0) ::execv(executable_, arguments_.data());
        Tell(report, errno);
        ::_exit(127);
    }

    const char* executable_;
    const char* folder_;
    std::vector<char*> arguments_;
};

// The report ends when the process becomes the program, which closes its end of the pipe.
Report Read_report(const Descriptor& from) {
    Report report;
    for (int* const part : {&report.Process, &report.Error}) {
        ssize_t got = 0;
        do {
            got = ::read(from.Number(), part, sizeof *part);
        } while (got < 0 && errno == EINTR);
        if (got != sizeof *part) break;
    }
    return report;
}

std::optional<std::string> Find_executable(const std::string& name) {
    if (name.find('/') != name.npos) return name;
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path ? path : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::string executable = (folder.empty() ? "." : folder) + "/" + name;
        struct stat status {};
        if (::stat(executable.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
            ::access(executable.c_str(), X_OK) == 0)
            return executable;
    }
    return std::nullopt;
}

std::unique_ptr<RunningProgram> Spawn(const Command& command) {
    const auto executable = Find_executable(command.Program);
    int ends[2];
    if (!executable || ::pipe2(ends, O_CLOEXEC) != 0) return nullptr;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);

    const Launch launch(*executable, command);
    const pid_t in_between = ::fork();
    if (in_between == 0) launch.Run_in_between(writing.Number());
    writing.Close();
    if (in_between < 0) return nullptr;
    const Report report = Read_report(reading);
    while (::waitpid(in_between, nullptr, 0) < 0 && errno == EINTR) {
    }
    if (report.Process == 0 || report.Error != 0) return nullptr;
    return std::make_unique<RunningProcess>(report.Process);
}

bool Is_windows_program(const std::string& path) {
    char mark[2] = {};
    std::ifstream(path, std::ios::binary).read(mark, sizeof mark);
    return mark[0] == 'M' && mark[1] == 'Z';
}

// Wine shows the whole file system as its drive Z; a path that began with "/" would look like an
// option to many a Windows program.
std::string As_windows_path(const std::string& argument) {
    if (!argument.starts_with('/')) return argument;
    std::string path = "Z:" + argument;
    for (char& c : path)
        if (c == '/') c = '\\';
    return path;
}

Command Through_wine(const Command& command) {
    Command wine{"wine", {command.Program}, command.Folder};
    for (const std::string& argument : command.Arguments)
        wine.Arguments.push_back(As_windows_path(argument));
    return wine;
}

}  // namespace

ProgramStart SystemPrograms::Start(const Command& command) {
    const bool for_windows = Is_windows_program(command.Program);
    if (for_windows)
        if (auto program = Spawn(Through_wine(command))) return {std::move(program), ""};
    if (auto program = Spawn(command)) return {std::move(program), ""};
    if (!for_windows) return {};
    return {nullptr, command.Program +
                         " is a Windows program, which this system runs through wine.\n"
                         "Please install wine and try again."};
}

bool SystemPrograms::Show_text(const std::string& path) {
    return Show_document(path);
}

bool SystemPrograms::Show_document(const std::string& address) {
    return Spawn({"xdg-open", {address}, ""}) != nullptr;
}

}  // namespace tidemark
