#include "canvas/background.h"

#include "model/path_text.h"
#include "model/project_file.h"

namespace tidemark {

namespace {

void Clear_project(Project& p) {
    p.BGLOD8X = p.BGLOD8Y = 0;
    p.BGLOD13tlX = p.BGLOD13tlY = p.BGLOD13brX = p.BGLOD13brY = 0;
    p.VTPCount = p.LWMCount = p.KillCount = 0;
}

}  // namespace

bool May_clear_project(const Session& session, Messages& messages) {
    return !session.DataChanged ||
           Ask(messages, "Tidemark - Load warning",
               "This will clear all of your current data - do you wish to continue?");
}

bool Choose_background(Project& project, Session& session, Platform& platform) {
    if (!May_clear_project(session, platform.messages)) return false;
    if (session.DataChanged) Clear_project(project);
    session.DataChanged = false;
    const auto path = platform.choosers.Choose({.Name = "LoadBMPdialog",
                                                .Title = "Tidemark - Open background image",
                                                .Filter = "*.BMP;*.GIF;*.JPG",
                                                .DefaultExtension = "",
                                                .FileName = project.BackgroundFile,
                                                .InitialFolder = platform.StartFolder});
    if (!path) return false;
    if (!Is_savable(*path)) {
        Warn(platform.messages, UnsavableNameText);
        return false;
    }
    project.BackgroundFile = *path;
    return true;
}

void Load_background_file(Project& project, Session& session, Messages& messages,
                          const ShowImage& show_image) {
    project.BackgroundLoaded = false;
    const std::string& name = project.BackgroundFile;
    std::string path = name;
    bool is_shown = show_image(path);
    if (!is_shown && !Is_full_path(name))
        is_shown = show_image(path = session.Opened.Folder + name);
    if (!is_shown) return Warn(messages, "An error occurred when trying to load " + name);
    session.Opened.Picture = path;
    project.BackgroundLoaded = true;
    session.DataChanged = true;
}

}  // namespace tidemark
