#include "app/asm_companion.h"

#include <ostream>
#include <set>

#include "lwm/lwm_list.h"
#include "model/path_text.h"
#include "model/project_file.h"
#include "model/segments.h"
#include "output/assembler_files.h"

namespace tidemark {

namespace {

// Messages as lines after a project's name.
class ConsoleMessages : public Messages {
  public:
    ConsoleMessages(std::ostream& errors, const std::string& project)
        : errors_(errors), project_(project) {}

    MessageAnswer Show(const Message& message) override {
        errors_ << project_ << ": " << message.Text << '\n';
        return MessageAnswer::OK;
    }

  private:
    std::ostream& errors_;
    const std::string& project_;
};

// Reads a project and puts its tables right, as opening it in the editor does.
bool Read_and_repair(const std::string& path, Project& project, Files& files,
                     std::ostream& errors) {
    std::string bytes;
    if (const FileResult read = files.Read(path, MaxProjectFileSize, bytes); !read) {
        errors << path << ": " << read.Reason() << '\n';
        return false;
    }
    const ProjectFileReading reading = Read_project(bytes, project);
    if (reading.Error) {
        errors << path << ": line " << reading.Error->Line << ": " << reading.Error->What << '\n';
        return false;
    }
    Repair_segments(project);
    Drop_closing_points(project);
    return true;
}

std::string Without_extension(const std::string& path) {
    const auto name_start = path.size() - Last_part(path).size();
    const auto dot = path.rfind('.');
    return dot == path.npos || dot <= name_start ? path : path.substr(0, dot);
}

// Where an assembler file goes: the name the project holds for it, or one made of its own.
std::string Output_path(const CompanionTask& task, const std::string& project_path,
                        const Project& project, const std::string& stored, const char* ending) {
    const bool is_named = project.PrefsSet && !stored.empty();
    const std::string path = is_named ? stored : Without_extension(project_path) + ending;
    return task.OutputFolder.empty() ? path : task.OutputFolder + "/" + Last_part(path);
}

// A file that is named twice, mostly by two projects, would keep the second's data alone.
bool Take_names(const std::string& path, const Project& project, std::set<std::string>& taken,
                std::ostream& errors) {
    for (const std::string& name : {project.VTPFileName, project.LWMFileName})
        if (!taken.insert(name).second) {
            errors << path << ": " << name << " would be written twice\n";
            return false;
        }
    return true;
}

bool Write_files_of(const std::string& path, const CompanionTask& task,
                    std::set<std::string>& taken, Files& files, std::ostream& out,
                    std::ostream& errors) {
    Project project;
    if (!Read_and_repair(path, project, files, errors)) return false;
    ConsoleMessages messages(errors, path);
    project.VTPFileName = Output_path(task, path, project, project.VTPFileName, "-VTP.asm");
    project.LWMFileName = Output_path(task, path, project, project.LWMFileName, "-LWM.asm");
    if (!Take_names(path, project, taken, errors)) return false;

    VTP_file_write(project, messages, files);
    if (!project.VTPWriteFailed) out << project.VTPFileName << '\n';
    if (project.LWMCount == 0) return !project.VTPWriteFailed;

    const bool lwm_written = LWM_file_write(project, messages, files);
    if (lwm_written) out << project.LWMFileName << '\n';
    return lwm_written && !project.VTPWriteFailed;
}

}  // namespace

bool Write_assembler_files(const CompanionTask& task, Files& files, std::ostream& out,
                           std::ostream& errors) {
    bool all_written = true;
    std::set<std::string> taken;
    for (const std::string& path : task.Projects)
        if (!Write_files_of(path, task, taken, files, out, errors)) all_written = false;
    return all_written;
}

}  // namespace tidemark
