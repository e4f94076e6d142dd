// The Output Preferences dialog without its window.
#pragma once

#include <optional>
#include <string>

#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

// What the dialog's controls hold.
struct OutputPreferences {
    std::string RootText;  // the filename root
    std::string FSname;    // the folder that compiled files are copied to
    bool FScopy = false;   // copy them; only then FSname and its Browse button are enabled
    // After saving one of the files, open it in the editor and compile it.
    bool LWMNotepad = false, LWMCompile = false;
    bool VTPNotepad = false, VTPCompile = false;

    bool operator==(const OutputPreferences&) const = default;
};

// What the dialog shows when it opens.
OutputPreferences Shown_preferences(const Project& project);

// Whether OK may close the dialog; says with a warning why not: a root without a ".", or a name
// that cannot stand in a project file.
bool Check_preferences(const OutputPreferences& preferences, Messages& messages);

// The project takes checked preferences over, with the two file names.
void Store_preferences(const OutputPreferences& preferences, Project& project);

// Confirms checked preferences, as one step. The project counts as changed whatever they were
// before, and both its files can be saved.
void Confirm_preferences(Document& document, Session& session,
                         const OutputPreferences& preferences);

// The file choosers behind the two Browse buttons, as they are when the dialog opens. They keep the
// last choice.
FileChooser BrowseDialog();
FileChooser FSBrowseDialog();

// What a Browse button puts into its text box: the chosen file as the root, or the folder of the
// chosen file with its last separator. Nothing when the user cancels, or when the path cannot stand
// in a project file (Warn).
std::optional<std::string> Browse_root(FileChooser& dialog, Platform& platform);
std::optional<std::string> Browse_folder(FileChooser& dialog, Platform& platform);

}  // namespace tidemark
