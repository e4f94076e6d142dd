// Which projects of an earlier run of tidemark-coast still hold.
//
// Beside them a file says with what options and of what coasts they were made: a coast that is
// older than a project need not be in it. It is written only when these change, so its own time
// says since when they are these, and a project that is older was made with others: after an
// interruption too, and on whatever machine.
#pragma once

#include <string>
#include <vector>

#include "app/coast_project.h"
#include "platform/files.h"

namespace tidemark {

inline constexpr const char* CoastOptionsName = "tidemark-coast.options";

class CoastUpkeep {
  public:
    // The folder, with its last separator, that the projects are in.
    CoastUpkeep(Files& files, std::string folder, const CoastProjectOptions& options,
                const std::vector<std::string>& coasts);

    // Whether the project file in the folder is newer than all coasts, and was made of these and
    // with these options.
    bool Holds(const std::string& name) const;

    // Has the file say these options and coasts, if it does not; before any project is made of
    // them.
    FileResult Note_options();

    std::string Options_path() const { return folder_ + CoastOptionsName; }

  private:
    bool Is_written() const;

    Files& files_;
    const std::string folder_;
    const std::string text_;                // of the options and the coasts
    const std::string text_before_coasts_;  // what the file held while it named no coasts
    const std::vector<std::string>& coasts_;
    bool is_noted_;
};

}  // namespace tidemark
