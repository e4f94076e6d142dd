#include "app/read_project.h"

#include "lwm/lwm_list.h"
#include "model/project_file.h"
#include "model/segments.h"

namespace tidemark {

ProjectFileResult Read_project_file(const std::string& path, Project& project, Files& files) {
    std::string bytes;
    if (const FileResult read = files.Read(path, MaxProjectFileSize, bytes); !read)
        return {false, 0, read.Reason()};
    if (!Reads_as_project(bytes)) return {false, 0, std::string(NoProjectText)};
    const ProjectFileReading reading = Read_project(bytes, project);
    if (reading.Error) return {false, reading.Error->Line, reading.Error->What};
    if (reading.EndedAtLine == 0) return {true, 0, ""};
    return {true, reading.EndedAtLine,
            "the file ends early; the values that are missing are 0, off or empty"};
}

void Repair_project(Project& project) {
    Repair_segments(project);
    Drop_closing_points(project);
}

}  // namespace tidemark
