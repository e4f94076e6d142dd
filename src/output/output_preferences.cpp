#include "output/output_preferences.h"

#include "model/path_text.h"
#include "model/project_file.h"
#include "output/output_names.h"

namespace tidemark {

namespace {

bool Check_path(const std::string& path, Messages& messages) {
    const bool savable = Is_savable(path);
    if (!savable) Warn(messages, UnsavableNameText);
    return savable;
}

std::optional<std::string> Browse(FileChooser& dialog, Platform& platform) {
    dialog.InitialFolder = platform.StartFolder;
    auto path = platform.choosers.Choose(dialog);
    if (!path || !Check_path(*path, platform.messages)) return std::nullopt;
    dialog.FileName = *path;
    return path;
}

}  // namespace

OutputPreferences Shown_preferences(const Project& project) {
    return {.RootText = project.OutputRoot,
            .FSname = project.FSFolder,
            .FScopy = project.CopyToFS,
            .LWMNotepad = project.LWMNotepad,
            .LWMCompile = project.LWMCompile,
            .VTPNotepad = project.VTPNotepad,
            .VTPCompile = project.VTPCompile};
}

bool Check_preferences(const OutputPreferences& preferences, Messages& messages) {
    const auto name = Output_name(LWMOutput, preferences.RootText);
    if (!name) {
        Warn(messages, "Selected filename root is not valid");
        return false;
    }
    return Check_path(*name, messages) && Check_path(preferences.FSname, messages);
}

void Store_preferences(const OutputPreferences& preferences, Project& project) {
    project.LWMNotepad = preferences.LWMNotepad;
    project.LWMCompile = preferences.LWMCompile;
    project.VTPNotepad = preferences.VTPNotepad;
    project.VTPCompile = preferences.VTPCompile;
    project.OutputRoot = preferences.RootText;
    project.LWMFileName = Output_name(LWMOutput, preferences.RootText).value();
    project.VTPFileName = Output_name(VTPOutput, preferences.RootText).value();
    project.CopyToFS = preferences.FScopy;
    project.FSFolder = preferences.FSname;
    project.PrefsSet = true;
}

void Confirm_preferences(Document& document, Session& session,
                         const OutputPreferences& preferences) {
    document.Do("change output preferences", [&](Project& project) {
        Store_preferences(preferences, project);
        session.Panel.LWMsave = session.Panel.VTPsave = true;
        session.DataChanged = true;
    });
}

FileChooser BrowseDialog() {
    return {.Name = "BrowseDialog",
            .Title = "Gridsmith - Save As",
            .Filter = "*.asm",
            .DefaultExtension = "asm",
            .FileName = "*.asm",
            .InitialFolder = "",
            .ForSaving = true};
}

// A folder without compiled files can be chosen too, by any name typed in it.
FileChooser FSBrowseDialog() {
    return {.Name = "FSBrowseDialog",
            .Title = "Gridsmith - Set FS folder",
            .Filter = "*.BGL",
            .DefaultExtension = "",
            .FileName = "*.BGL",
            .InitialFolder = "",
            .ForSaving = true};
}

std::optional<std::string> Browse_root(FileChooser& dialog, Platform& platform) {
    return Browse(dialog, platform);
}

std::optional<std::string> Browse_folder(FileChooser& dialog, Platform& platform) {
    const auto path = Browse(dialog, platform);
    return path ? std::optional(Folder_part(*path)) : std::nullopt;
}

}  // namespace tidemark
