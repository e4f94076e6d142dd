#include "canvas/background.h"

#include "model/path_text.h"
#include "model/project_file.h"

namespace tidemark {

namespace {

void Clear_project(Project& p) {
    p.BGLOD8X = p.BGLOD8Y = 0;
    p.BGLOD13tlX = p.BGLOD13tlY = p.BGLOD13brX = p.BGLOD13brY = 0;
    p.DataChanged = false;
    p.VTPCount = p.LWMCount = p.KillCount = 0;
}

}  // namespace

bool May_clear_project(const Project& project, Messages& messages) {
    return !project.DataChanged ||
           Ask(messages, "Tidemark - Load warning",
               "This will clear all of your current data - do you wish to continue?");
}

bool Choose_background(Project& project, Messages& messages, Choosers& choosers,
                       const std::string& start_folder) {
    if (!May_clear_project(project, messages)) return false;
    if (project.DataChanged) Clear_project(project);
    FileChooser chooser;
    chooser.Name = "LoadBMPdialog";
    chooser.Title = "Tidemark - Open background image";
    chooser.Filter = "*.BMP;*.GIF;*.JPG";
    chooser.FileName = project.BackgroundFile;
    chooser.InitialFolder = start_folder;
    const auto path = choosers.Choose(chooser);
    if (!path) return false;
    if (!Is_savable(*path)) {
        Warn(messages, UnsavableNameText);
        return false;
    }
    project.BackgroundFile = *path;
    return true;
}

void Load_background_file(Project& project, Messages& messages, const std::string& project_folder,
                          const ShowImage& show_image) {
    project.BackgroundLoaded = false;
    const std::string& name = project.BackgroundFile;
    if (!show_image(name) && (Is_full_path(name) || !show_image(project_folder + name))) {
        Warn(messages, "An error occurred when trying to load " + name);
        return;
    }
    project.BackgroundLoaded = true;
    project.DataChanged = true;
}

}  // namespace tidemark
