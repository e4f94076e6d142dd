#include "app/project_commands.h"

#include <utility>

#include "app/map_commands.h"
#include "app/read_project.h"
#include "model/path_text.h"
#include "model/project_file.h"
#include "output/output_names.h"

namespace tidemark {

namespace {

FileChooser Project_chooser(const Platform& platform, bool for_saving) {
    return {.Name = for_saving ? "SaveProject" : "OpenProject",
            .Title = for_saving ? "Tidemark - Save Project As" : "Tidemark - Open Project",
            .Filter = "*.TDM",
            .DefaultExtension = "TDM",
            .FileName = "",
            .InitialFolder = platform.StartFolder,
            .ForSaving = for_saving};
}

// Whether every text of the project can be saved; says which one cannot.
bool Check_texts(const Project& project, Messages& messages) {
    const auto unsavable = Unsavable_text(project);
    if (unsavable)
        Warn(messages,
             *unsavable + " cannot be saved: it holds a line end or a NUL, or it is too long.");
    return !unsavable;
}

// A name that nobody chose here and that is no project's may be that of any file of the user's.
bool May_be_saved_under_its_name(const Project& project, const Session& session,
                                 Messages& messages) {
    const std::string& name = project.ProjectFile;
    return Has_extension(name, ".TDM") || name == session.ChosenPath ||
           Ask(messages, "Tidemark - Save Warning",
               "This project is to be saved as " + name +
                   ", a name that does not end in .TDM.\nSave it there all the same?");
}

void Add_remark(std::string& remarks, const std::string& remark) {
    remarks += (remarks.empty() ? "" : "; ") + remark;
}

}  // namespace

std::string Save_path(const Project& project, const Session& session) {
    const std::string& name = project.ProjectFile;
    return name.empty() || Is_full_path(name) ? name : session.Opened.Folder + name;
}

std::string Opening_remark(const Project& project, const Session& session, Platform& platform) {
    std::string remark;
    const std::string path = Save_path(project, session);
    if (!path.empty() && path != session.Opened.Path &&
        !platform.files.Is_same_file(path, session.Opened.Path)) {
        remark = "Save Project writes to " + path;
        if (Is_path_of_another_system(path, platform.StartFolder))
            remark += ", a path of another system: use Save Project As";
    }
    if (project.VTPCompile)
        Add_remark(remark, "Save VTP data starts " + Compiler_path(project.VTPFileName));
    if (project.LWMCompile)
        Add_remark(remark, "Save LWM data starts " + Compiler_path(project.LWMFileName));
    return remark;
}

bool Choose_project_to_save(Document& document, Session& session, Platform& platform) {
    const auto path = platform.choosers.Choose(Project_chooser(platform, true));
    if (!path) return false;
    return document.Settle([&](Project& project) {
        std::string before = std::exchange(project.ProjectFile, *path);
        const bool can_be_saved = Check_texts(project, platform.messages);
        if (can_be_saved)
            session.Opened.Path = session.ChosenPath = *path;
        else
            project.ProjectFile = std::move(before);
        return can_be_saved;
    });
}

bool Save_project(Document& document, Session& session, Platform& platform) {
    const Project& project = document.Now();
    if (project.ProjectFile.empty() && !Choose_project_to_save(document, session, platform))
        return false;
    if (!Check_texts(project, platform.messages)) return false;
    if (!May_be_saved_under_its_name(project, session, platform.messages)) return false;
    const std::string& name = project.ProjectFile;
    const std::string path = Save_path(project, session);
    if (platform.files.Exists(path) &&
        !Ask(platform.messages, "Tidemark - File Exists", name + " - file exists - overwrite?"))
        return false;

    const std::string bytes = Project_bytes(project, platform.clock.Now_text());
    const FileResult written = platform.files.Replace(path, bytes);
    if (!written) {
        session.DataChanged = true;
        Warn(platform.messages, name + " could not be saved: " + written.Reason());
        return false;
    }
    Inform(platform.messages, "Tidemark - Saved OK", name + " saved successfully");
    document.Mark_saved();
    return true;
}

std::optional<std::string> Choose_project_to_open(Platform& platform) {
    return platform.choosers.Choose(Project_chooser(platform, false));
}

void Take_over(const std::string& path, Project& project, Session& session, Messages& messages,
               const ShowImage& show_image) {
    ++session.Opened.Opening;
    session.Opened.Path = path;
    session.Opened.Folder = Folder_part(path);
    if (project.BackgroundLoaded) Load_background_file(project, session, messages, show_image);
    session.Panel.LWMsave = session.Panel.VTPsave = project.PrefsSet;
    Refresh_lists(project, session);
    session.Opened.FileSave = true;
}

namespace {

// The line of the status bar about a file: "bay.TDM, line 3: ...".
std::string Status_line(const std::string& path, const ProjectFileResult& reading) {
    if (reading.Remark.empty()) return "";
    const std::string line = reading.Line == 0 ? "" : ", line " + std::to_string(reading.Line);
    return Last_part(path) + line + ": " + reading.Remark;
}

}  // namespace

std::string Open_project(const std::string& path, Document& document, Session& session,
                         Platform& platform, const ShowImage& show_image) {
    const std::string step = "open " + Last_part(path);
    if (!platform.files.Exists(path)) {
        document.Do(step, [&](Project& project) { project.ProjectFile = path; });
        Warn(platform.messages, path + " not found!");
        return "";
    }
    const auto reading = document.Do(step, [&](Project& project) {
        auto read = Read_project_file(path, project, platform.files);
        if (read.IsRead) {
            Take_over(path, project, session, platform.messages, show_image);
            document.Mark_saved();
        }
        return read;
    });
    std::string status = Status_line(path, reading);
    if (!reading.IsRead) return status;
    const std::string remark = Opening_remark(document.Now(), session, platform);
    if (!remark.empty()) Add_remark(status, remark);
    return status;
}

bool May_exit(const Session& session, Messages& messages) {
    return !session.DataChanged || Ask(messages, "Tidemark - Exit Warning",
                                       "Data has not been saved - do you wish to exit?");
}

}  // namespace tidemark
