// What the stand-in compiler checks of an assembler file: its lines, the macros it calls with their
// arguments, and the labels it refers to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidemark {

struct AssemblerError {
    int Line;  // from 1
    std::string What;
};

// The first thing wrong with an assembler file: a line that does not end with CR LF or that is
// empty, a macro that the include files do not define, a wrong number or kind of arguments, a
// number outside 16 bits, a label that is defined twice or not at all, a count that announces
// another number of records than follow. Nothing when all is well.
std::optional<AssemblerError> Check_assembler(std::string_view bytes);

}  // namespace tidemark
