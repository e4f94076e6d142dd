// Programs by way of POSIX calls.
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "platform/posix_descriptor.h"
#include "platform/programs.h"

namespace tidemark {

namespace {

// A child of ours. A thread of its own waits for its end, so that it never stays behind as a
// zombie, whether or not anybody asks; it outlives us like any program.
class RunningProcess : public RunningProgram {
  public:
    explicit RunningProcess(pid_t process) {
        std::thread([process, status = status_] { *status = Status_at_end(process); }).detach();
    }

    std::optional<ProgramEnd> End() override {
        const int status = *status_;
        if (status == StillRuns) return std::nullopt;
        if (WIFSIGNALED(status)) return ProgramEnd{.Signal = WTERMSIG(status)};
        return ProgramEnd{.Status = static_cast<std::uint32_t>(WEXITSTATUS(status))};
    }

  private:
    static constexpr int StillRuns = -1;

    static int Status_at_end(pid_t process) {
        int status = SIGKILL;  // as long as nobody knows better
        while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
        }
        return status;
    }

    std::shared_ptr<std::atomic<int>> status_ = std::make_shared<std::atomic<int>>(StillRuns);
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

    // In the new process. The program gets the signals, the input and the descriptors that any new
    // program has; what is typed into our terminal is not meant for it. When it cannot become the
    // program, the process says why and ends.
    [[noreturn]] void Become_program(int report) const {
        ::setsid();
        for (const int number : {SIGPIPE, SIGXFSZ}) ::signal(number, SIG_DFL);
        sigset_t none;
        ::sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        if (const int nothing = ::open("/dev/null", O_RDONLY); nothing >= 0)
            ::dup2(nothing, STDIN_FILENO);
        ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
        if (*folder_ == '\0' || ::chdir(folder_) == 0) ::execv(executable_, arguments_.data());
        const int error = errno;
        [[maybe_unused]] const ssize_t written = ::write(report, &error, sizeof error);
        ::_exit(127);
    }

  private:
    const char* executable_;
    const char* folder_;
    std::vector<char*> arguments_;
};

// Whether the process became the program, which closes its end of the pipe.
bool Has_become_program(const Descriptor& report) {
    int error = 0;
    ssize_t got = 0;
    do got = ::read(report.Number(), &error, sizeof error);
    while (got < 0 && errno == EINTR);
    return got == 0;
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
    const pid_t process = ::fork();
    if (process == 0) launch.Become_program(writing.Number());
    writing.Close();
    if (process < 0) return nullptr;
    auto program = std::make_unique<RunningProcess>(process);
    if (!Has_become_program(reading)) return nullptr;
    return program;
}

// A failure that shows within a second.
std::optional<ProgramEnd> Failure_at_once(RunningProgram& program, Patience& patience) {
    constexpr int second = 1000, look = 20;  // milliseconds
    for (int waited = 0; waited < second && !program.End(); waited += look)
        patience.Wait_a_moment(look);
    const auto end = program.End();
    return end && !end->Is_success() ? end : std::nullopt;
}

// Of a regular file only: to open a pipe would take until somebody writes into it.
bool Is_windows_program(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    char mark[2] = {};
    return file.Is_open() && ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::read(file.Number(), mark, sizeof mark) == sizeof mark && mark[0] == 'M' &&
           mark[1] == 'Z';
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

// A child's end could not be learnt where whoever started us had that signal ignored.
SystemPrograms::SystemPrograms(Patience& patience) : patience_(patience) {
    ::signal(SIGCHLD, SIG_DFL);
}

ProgramStart SystemPrograms::Start(const Command& command) {
    if (!Is_windows_program(command.Program)) return {Spawn(command), ""};
    const std::string advice =
        command.Program + " is a Windows program, which this system runs through wine.\n";
    if (auto wine = Spawn(Through_wine(command))) {
        const auto failure = Failure_at_once(*wine, patience_);
        if (failure) return {nullptr, advice + "It " + failure->Text() + "."};
        return {std::move(wine), ""};
    }
    if (auto program = Spawn(command)) return {std::move(program), ""};
    return {nullptr, advice + "Please install wine and try again."};
}

bool SystemPrograms::Show_text(const std::string& path) {
    return Show_document(path);
}

bool SystemPrograms::Show_document(const std::string& address) {
    const auto opener = Spawn({"xdg-open", {address}, ""});
    return opener && !Failure_at_once(*opener, patience_);
}

}  // namespace tidemark
