#include "output/after_save.h"

#include <memory>
#include <optional>
#include <utility>

#include "model/path_text.h"
#include "output/compiled_file.h"
#include "output/output_names.h"

namespace tidemark {

namespace {

constexpr std::string_view NotepadProblem =
    "There was a problem opening the external program Notepad!";
constexpr std::string_view CompilerProblem =
    "There was a problem opening the external program BGLC.EXE.\n"
    "Please ensure that Flight Simulator 2002 is not currently running, and try saving the file "
    "again.";

constexpr std::uintmax_t LargestCompiledFile = std::uintmax_t{1} << 30;  // bytes

class AfterSave {
  public:
    AfterSave(const AfterSaveTask& task, Platform& platform)
        : task_(task),
          messages_(platform.messages),
          files_(platform.files),
          programs_(platform.programs),
          patience_(platform.patience) {}

    void Run() {
        if (task_.Notepad && !programs_.Show_text(files_.Full_path(task_.File)))
            return Warn(messages_, NotepadProblem);
        if (task_.Compile && !Delete_compiled_file()) return Warn(messages_, CompilerProblem);
        const auto compiler = Find_compiler();
        if (!compiler) return;
        if (task_.Compile && !Start(*compiler)) return;
        if (task_.CopyToFS) Copy_when_complete();
    }

  private:
    // In every case of its name: one that stayed would be taken for the new one.
    bool Delete_compiled_file() {
        while (const auto old = Find_compiled_file(task_.File, files_))
            if (!files_.Delete(*old)) return false;
        return true;
    }

    std::optional<std::string> Find_compiler() {
        const std::string expected = Compiler_path(task_.File);
        auto compiler = files_.Find(expected);
        if (!compiler)
            Warn(messages_,
                 expected +
                     " was not found!\n"
                     "You need to have BGLC.EXE and the associated include files in the\n"
                     "same folder as your Tidemark assembler files.");
        return compiler;
    }

    // In its own folder, where its include files are.
    bool Start(const std::string& compiler) {
        const std::string path = files_.Full_path(compiler);
        ProgramStart start =
            programs_.Start({path, {files_.Full_path(task_.File)}, Folder_part(path)});
        if (!start.Program) Warn(messages_, start.Advice.empty() ? CompilerProblem : start.Advice);
        compiler_ = std::move(start.Program);
        return compiler_ != nullptr;
    }

    void Copy_when_complete() {
        const auto compiled = Await_compiled_file(task_.File, compiler_.get(), files_, patience_);
        if (!compiled.Path) {
            if (!compiled.Problem.empty()) Warn(messages_, compiled.Problem);
            return;
        }
        const std::string name = Last_part(BGL_name(task_.File));
        if (!Copy(*compiled.Path, name)) return Warn(messages_, CompilerProblem);
        Inform(messages_, "Tidemark - File OK", name + " successfully copied to " + task_.FSFolder);
    }

    // Over a file of that name in the destination folder, whatever its case.
    bool Copy(const std::string& from, const std::string& name) {
        const std::string folder =
            task_.FSFolder.substr(0, task_.FSFolder.find_last_not_of("\\/") + 1);
        if (task_.FSFolder.empty() || !files_.Exists(folder + "/")) return false;  // no folder
        const std::string to = folder + "/" + name;
        std::string bytes;
        return files_.Read(from, LargestCompiledFile, bytes) &&
               files_.Replace(files_.Find(to).value_or(to), bytes);
    }

    const AfterSaveTask& task_;
    Messages& messages_;
    Files& files_;
    Programs& programs_;
    Patience& patience_;
    std::unique_ptr<RunningProgram> compiler_;
};

}  // namespace

AfterSaveTask LWM_after_save(const Project& project) {
    return {.File = project.LWMFileName,
            .Notepad = project.LWMNotepad,
            .Compile = project.LWMCompile,
            .CopyToFS = project.CopyToFS,
            .FSFolder = project.FSFolder};
}

AfterSaveTask VTP_after_save(const Project& project) {
    return {.File = project.VTPFileName,
            .Notepad = project.VTPNotepad,
            .Compile = project.VTPCompile,
            .CopyToFS = project.CopyToFS,
            .FSFolder = project.FSFolder};
}

void After_save(const AfterSaveTask& task, Platform& platform) {
    AfterSave(task, platform).Run();
}

}  // namespace tidemark
