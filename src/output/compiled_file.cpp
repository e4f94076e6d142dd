#include "output/compiled_file.h"

#include "model/path_text.h"
#include "output/output_names.h"
#include "platform/name_case.h"

namespace tidemark {

namespace {

// Milliseconds. How long nothing may change before the file counts as complete, or as not to come:
// a compiler may have handed over to another program, or never end by itself.
struct Quiet {
    int Complete, GivenUp;
};
constexpr Quiet CompilerHasEnded{300, 3000};
constexpr Quiet CompilerGoesOn{15000, 60000};

constexpr int TimeBetweenLooks = 100;

}  // namespace

std::optional<std::string> Find_compiled_file(const std::string& assembler_file, Files& files) {
    const std::string name = BGL_name(assembler_file);
    if (Differ_at_most_in_case(name, assembler_file)) return std::nullopt;
    return files.Find(name);
}

std::optional<std::string> Await_compiled_file(const std::string& assembler_file,
                                               RunningProgram* compiler, Files& files,
                                               Patience& patience) {
    if (!compiler) return Find_compiled_file(assembler_file, files);
    const std::string what_for = "Waiting for BGLC.EXE to compile " + Last_part(assembler_file);
    std::optional<std::uintmax_t> size;
    for (int quiet = 0;; quiet += TimeBetweenLooks) {
        const Quiet& limits = compiler->Has_ended() ? CompilerHasEnded : CompilerGoesOn;
        auto file = Find_compiled_file(assembler_file, files);
        const auto size_now = file ? files.Size(*file) : std::nullopt;
        if (size_now != size) quiet = 0;
        size = size_now;
        if (quiet >= (file ? limits.Complete : limits.GivenUp)) {
            patience.Over();
            return file;
        }
        patience.Wait(what_for, TimeBetweenLooks);
    }
}

}  // namespace tidemark
