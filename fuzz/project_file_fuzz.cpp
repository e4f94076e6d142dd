// The project file's reader with any bytes.
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "check.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"

namespace tidemark {
namespace {

// A file keeps 7 digits of a scale.
void Take_scale(float& scale, float read) {
    Check(std::fabs(scale - read) <= std::fabs(read) * 1e-6F, "a scale keeps its 7 digits");
    scale = read;
}

// A file that is refused leaves the project as it was; one that is read comes back equal once it
// has been written.
void Read_and_write(std::string_view bytes) {
    static const auto before = std::make_unique<Project>(Project_of_all_values());
    static const auto project = std::make_unique<Project>();
    static const auto again = std::make_unique<Project>();

    *project = *before;
    const ProjectFileReading reading = Read_project(bytes, *project);
    if (reading.Error) {
        Check(*project == *before, "a refused file changes nothing");
        Check(reading.Error->Line > 0 && !reading.Error->What.empty(), "a refusal says why");
        return;
    }
    Check(!Unsavable_text(*project), "what was read can be saved");
    const std::string written = Project_bytes(*project, "now");
    Check(Reads_as_project(written), "what was written reads as a project");
    Check(!Read_project(written, *again).Error, "what was written can be read");
    Take_scale(again->ScaleX, project->ScaleX);
    Take_scale(again->ScaleY, project->ScaleY);
    Check(*again == *project, "what was written reads back equal");
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Read_and_write({reinterpret_cast<const char*>(data), size});
    return 0;
}
