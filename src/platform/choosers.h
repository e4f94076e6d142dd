// File choosers, as the rules ask for them.
#pragma once

#include <optional>
#include <string>

namespace tidemark {

struct FileChooser {
    std::string Name;  // its own name, such as "OpenProject"
    std::string Title;
    std::string Filter;            // patterns joined with ";", such as "*.BMP;*.GIF"
    std::string DefaultExtension;  // added to a name without one; empty: none
    std::string FileName;          // shown when it opens
    std::string InitialFolder;
    bool ForSaving = false;
};

class Choosers {
  public:
    virtual ~Choosers() = default;

    // The chosen full path, or nothing when the user cancels.
    virtual std::optional<std::string> Choose(const FileChooser& chooser) = 0;
};

}  // namespace tidemark
