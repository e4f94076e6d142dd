#include "app/project_commands.h"

#include "model/path_text.h"
#include "model/project_file.h"

namespace tidemark {

namespace {

FileChooser Project_chooser(const Platform& platform, bool for_saving) {
    FileChooser chooser;
    chooser.Name = for_saving ? "SaveProject" : "OpenProject";
    chooser.Title = for_saving ? "Tidemark - Save Project As" : "Tidemark - Open Project";
    chooser.Filter = "*.TDM";
    chooser.DefaultExtension = "TDM";
    chooser.InitialFolder = platform.StartFolder;
    chooser.ForSaving = for_saving;
    return chooser;
}

// Whether every text of the project can be saved; says which one cannot.
bool Check_texts(const Project& project, Messages& messages) {
    const auto unsavable = Unsavable_text(project);
    if (unsavable)
        Warn(messages,
             *unsavable + " cannot be saved: it holds a line end or a NUL, or it is too long.");
    return !unsavable;
}

std::string Refusal(const std::string& path, int line, const std::string& what) {
    return Last_part(path) + ", line " + std::to_string(line) + ": " + what;
}

}  // namespace

bool Choose_project_to_save(Project& project, Platform& platform) {
    const auto path = platform.choosers.Choose(Project_chooser(platform, true));
    if (!path) return false;
    std::string before = std::exchange(project.ProjectFile, *path);
    if (Check_texts(project, platform.messages)) return true;
    project.ProjectFile = std::move(before);
    return false;
}

bool Save_project(Project& project, Platform& platform) {
    if (project.ProjectFile.empty() && !Choose_project_to_save(project, platform)) return false;
    if (!Check_texts(project, platform.messages)) return false;
    const std::string& path = project.ProjectFile;
    if (platform.files.Exists(path) &&
        !Ask(platform.messages, "Tidemark - File Exists", path + " - file exists - overwrite?"))
        return false;

    const std::string bytes = Project_bytes(project, platform.clock.Now_text());
    const FileResult written = platform.files.Replace(path, bytes);
    if (!written) {
        Warn(platform.messages, path + " could not be saved: " + written.Reason());
        return false;
    }
    Inform(platform.messages, "Tidemark - Saved OK", path + " saved successfully");
    project.DataChanged = false;
    return true;
}

std::optional<std::string> Choose_project_to_open(Platform& platform) {
    return platform.choosers.Choose(Project_chooser(platform, false));
}

OpenResult Open_project(const std::string& path, Project& project, Platform& platform) {
    if (!platform.files.Exists(path)) {
        project.ProjectFile = path;
        Warn(platform.messages, path + " not found!");
        return {};
    }
    std::string bytes;
    const FileResult read = platform.files.Read(path, MaxProjectFileSize, bytes);
    if (!read) return {false, Refusal(path, 1, read.Reason())};
    if (!Reads_as_project(bytes))
        return {false, Last_part(path) + ": " + std::string(NoProjectText)};

    const ProjectFileReading reading = Read_project(bytes, project);
    if (reading.Error) return {false, Refusal(path, reading.Error->Line, reading.Error->What)};
    if (reading.EndedAtLine == 0) return {true, ""};
    return {true, Refusal(path, reading.EndedAtLine,
                          "the file ends early; the values that are missing are 0, off or empty")};
}

bool May_exit(const Project& project, Messages& messages) {
    return !project.DataChanged || Ask(messages, "Tidemark - Exit Warning",
                                       "Data has not been saved - do you wish to exit?");
}

}  // namespace tidemark
