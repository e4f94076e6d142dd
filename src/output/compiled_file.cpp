#include "output/compiled_file.h"

#include <limits>

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
constexpr int LongestWait = 60000;

class Waiting {
  public:
    Waiting(const std::string& assembler_file, RunningProgram& compiler, Files& files)
        : assembler_file_(assembler_file), compiler_(compiler), files_(files) {}

    // The result so far; nothing while it has to go on.
    std::optional<CompiledFile> Look() {
        const std::string name = Last_part(BGL_name(assembler_file_));
        const auto end = compiler_.End();
        if (end && !end->Is_success())
            return CompiledFile{{}, name + " was not copied: BGLC.EXE " + end->Text() + "."};
        const Quiet& limits = end ? CompilerHasEnded : CompilerGoesOn;
        const auto file = Find_compiled_file(assembler_file_, files_);
        const auto size = file ? files_.Size(*file).value_or(NoFile) : NoFile;
        if (size != size_) quiet_ = 0;
        size_ = size;
        if (quiet_ >= (file ? limits.Complete : limits.GivenUp))
            return file ? CompiledFile{file, ""} : CompiledFile{{}, name + " not found!"};
        if (waited_ >= LongestWait)
            return CompiledFile{{}, name + " was not copied: BGLC.EXE does not end."};
        return std::nullopt;
    }

    // False when the user cancels.
    bool Go_on(Patience& patience) {
        waited_ += TimeBetweenLooks;
        quiet_ += TimeBetweenLooks;
        return patience.Wait("Waiting for BGLC.EXE to compile " + Last_part(assembler_file_),
                             TimeBetweenLooks);
    }

  private:
    static constexpr std::uintmax_t NoFile = std::numeric_limits<std::uintmax_t>::max();

    const std::string& assembler_file_;
    RunningProgram& compiler_;
    Files& files_;
    std::uintmax_t size_ = NoFile;  // of the compiled file, bytes
    int waited_ = 0, quiet_ = 0;    // milliseconds, in all and since the file's size has changed
};

}  // namespace

std::optional<std::string> Find_compiled_file(const std::string& assembler_file, Files& files) {
    const std::string name = BGL_name(assembler_file);
    if (Differ_at_most_in_case(name, assembler_file)) return std::nullopt;
    return files.Find(name);
}

CompiledFile Await_compiled_file(const std::string& assembler_file, RunningProgram* compiler,
                                 Files& files, Patience& patience) {
    const std::string name = Last_part(BGL_name(assembler_file));
    if (!compiler) return {Find_compiled_file(assembler_file, files), name + " not found!"};
    Waiting waiting(assembler_file, *compiler, files);
    for (;;) {
        if (const auto result = waiting.Look()) {
            patience.Over("");
            return *result;
        }
        if (!waiting.Go_on(patience)) {
            patience.Over(name + " was not copied.");
            return {};
        }
    }
}

}  // namespace tidemark
