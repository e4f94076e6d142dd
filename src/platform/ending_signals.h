// Signals that ask the program to end, reported where it is safe to act on them.
#pragma once

namespace tidemark {

// From now on TERM, HUP, INT and QUIT do not end the program by themselves: each puts its number as
// one byte into a pipe, whose reading end this is. -1 where there are no such signals, or when the
// pipe cannot be made. To be called once.
int Pipe_of_ending_signals();

// Ends the program as the signal in the pipe would have done. Does not come back.
[[noreturn]] void End_by_signal(int pipe);

}  // namespace tidemark
