#include "app/asm_companion.h"

#include <algorithm>
#include <ostream>

#include "app/read_project.h"
#include "coast/check.h"
#include "model/path_text.h"
#include "model/segments.h"
#include "output/assembler_files.h"
#include "output/foreign_file.h"
#include "output/vtp_text.h"

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
    const ProjectFileResult reading = Read_project_file(path, project, files);
    if (!reading.IsRead) {
        errors << path << ": ";
        if (reading.Line > 0) errors << "line " << reading.Line << ": ";
        errors << reading.Remark << '\n';
        return false;
    }
    Repair_project(project);
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

// Whether polygons are all that there is to write: a project that goes on with those of another
// one, or whose coastlines are plain edges only.
bool Has_polygons_only(const Project& project) {
    return project.LWMCount > 0 && project.KillCount == 0 &&
           Written_segment_count(Segments(project)) == 0;
}

class Companion {
  public:
    Companion(const CompanionTask& task, Files& files, std::ostream& out, std::ostream& errors)
        : task_(task), files_(files), out_(out), errors_(errors) {}

    // False when anything was refused, or the coast is to be checked and has errors.
    bool Take(const std::string& path) {
        Project project;
        if (!Read_and_repair(path, project, files_, errors_)) return false;
        const Findings findings = Check_coast(project);
        for (const Finding& finding : findings)
            if (task_.ChecksOnly || finding.IsError)
                (task_.ChecksOnly ? out_ : errors_)
                    << path << ": " << Finding_line(finding) << '\n';
        return task_.ChecksOnly ? Count_errors(findings) == 0 : Write_files_of(path, project);
    }

  private:
    bool Write_files_of(const std::string& path, Project& project) {
        Session session;
        ConsoleMessages messages(errors_, path);
        project.VTPFileName = Output_path(task_, path, project, project.VTPFileName, "-VTP.asm");
        project.LWMFileName = Output_path(task_, path, project, project.LWMFileName, "-LWM.asm");

        const bool vtp_written =
            Has_polygons_only(project) || Write(path, project.VTPFileName, [&] {
                VTP_file_write(project, session, messages, files_);
                return !session.VTPWriteFailed;
            });
        const bool lwm_written = project.LWMCount == 0 || Write(path, project.LWMFileName, [&] {
                                     return LWM_file_write(project, messages, files_);
                                 });
        return vtp_written && lwm_written;
    }

    // A name that leads to a file of this run is refused: what was written first would be lost. So
    // is one that leads to somebody else's work.
    template <class Write_file>
    bool Write(const std::string& project, const std::string& name, Write_file write_file) {
        const auto is_name = [&](const auto& other) { return files_.Is_same_file(name, other); };
        if (std::ranges::any_of(written_, is_name)) {
            errors_ << project << ": " << name << " would be written twice\n";
            return false;
        }
        if (Is_foreign_file(name, files_)) {
            errors_ << project << ": " << name
                    << " is there and is no assembler file of Tidemark; it is left as it is\n";
            return false;
        }
        if (!write_file()) return false;
        written_.push_back(name);
        out_ << name << '\n';
        return true;
    }

    const CompanionTask& task_;
    Files& files_;
    std::ostream& out_;
    std::ostream& errors_;
    std::vector<std::string> written_;
};

}  // namespace

bool Write_assembler_files(const CompanionTask& task, Files& files, std::ostream& out,
                           std::ostream& errors) {
    Companion companion(task, files, out, errors);
    bool all_is_well = true;
    for (const std::string& path : task.Projects) all_is_well &= companion.Take(path);
    return all_is_well;
}

}  // namespace tidemark
