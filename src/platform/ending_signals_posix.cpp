#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

#include "platform/ending_signals.h"

namespace tidemark {

namespace {

int writing_end = -1;

// Nothing but writing is allowed here: the signal may have come in the middle of anything.
void Put_into_pipe(int signal) {
    const int error = errno;
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(writing_end, &number, 1);
    errno = error;
}

}  // namespace

int Pipe_of_ending_signals() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return -1;
    writing_end = ends[1];
    struct sigaction action {};
    action.sa_handler = Put_into_pipe;
    action.sa_flags =
        static_cast<int>(SA_RESTART | SA_RESETHAND);  // a second one ends a program that hangs
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT}) {
        struct sigaction before {};
        ::sigaction(signal, nullptr, &before);
        // Who started the program wants it to outlive this one (nohup).
        if (before.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
    }
    return ends[0];
}

void End_by_signal(int pipe) {
    unsigned char number = SIGTERM;
    [[maybe_unused]] const ssize_t got = ::read(pipe, &number, 1);
    ::signal(number, SIG_DFL);
    ::raise(number);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace tidemark
