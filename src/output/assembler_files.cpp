#include "output/assembler_files.h"

#include <optional>
#include <vector>

#include "model/drawing_modes.h"
#include "model/segments.h"
#include "model/text_forms.h"
#include "output/foreign_file.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {

namespace {

bool Has_single_point_segment(const Project& project) {
    for (int i = 1; i <= project.VTPCount; ++i)
        if (project.VTPSegStart(i) && project.VTPSegEnd(i)) return true;
    return false;
}

// The first point that starts a segment of a drawing mode no texture goes with.
std::optional<int> Point_of_unknown_mode(const std::vector<Segment>& segments) {
    for (const Segment& segment : segments)
        if (!Find_mode(segment.Mode, Adds::Point)) return segment.First;
    return std::nullopt;
}

// Why there is no VTP file of this project, in words; nothing when there is one.
std::optional<std::string> VTP_refusal(const Project& project,
                                       const std::vector<Segment>& segments) {
    if (Has_single_point_segment(project))
        return "VTP file generation aborted - there is a VTP segment with only one point in it!\n"
               "Please delete this point and try again.";
    if (const auto point = Point_of_unknown_mode(segments))
        return "VTP file generation aborted - the segment that starts at point " +
               Int_text(*point) + " has the unknown drawing mode " +
               Int_text(project.VTPMode(*point)) + "!";
    if (Written_segment_count(segments) == 0 && project.KillCount == 0)
        return "VTP file generation aborted - no valid coast segments or cell clearing data found "
               "in VTP data!";
    return std::nullopt;
}

// Asks before a file is replaced that is somebody else's work.
bool May_replace(const std::string& path, Messages& messages, Files& files) {
    return !Is_foreign_file(path, files) ||
           Ask(messages, "Tidemark - Save Warning",
               path + " was not written by Tidemark.\nReplace it all the same?");
}

bool Write_file(const std::string& path, std::string_view bytes, Messages& messages, Files& files) {
    if (!May_replace(path, messages, files)) return false;
    const FileResult written = files.Replace(path, bytes);
    if (!written) Warn(messages, path + " could not be written: " + written.Reason());
    return static_cast<bool>(written);
}

bool Write_VTP_file(const Project& project, Messages& messages, Files& files) {
    const std::vector<Segment> segments = Segments(project);
    if (const auto refusal = VTP_refusal(project, segments)) {
        Warn(messages, *refusal);
        return false;
    }
    try {
        return Write_file(project.VTPFileName, VTP_file_bytes(project, segments), messages, files);
    } catch (const Overflow&) {
        Warn(messages, "VTP file generation aborted - a point lies too far outside the map!");
        return false;
    }
}

}  // namespace

void VTP_file_write(const Project& project, Session& session, Messages& messages, Files& files) {
    if (!Write_VTP_file(project, messages, files)) session.VTPWriteFailed = true;
}

bool LWM_file_write(const Project& project, Messages& messages, Files& files) {
    return Write_file(project.LWMFileName, LWM_file_bytes(project), messages, files);
}

bool Save_VTP_file(const Project& project, Session& session, Messages& messages, Files& files) {
    session.VTPWriteFailed = false;
    VTP_file_write(project, session, messages, files);
    if (session.VTPWriteFailed) return false;
    if (!project.VTPNotepad && !project.VTPCompile)
        Inform(messages, "Tidemark - File saved", "VTP file saved OK");
    return true;
}

bool Save_LWM_file(const Project& project, Messages& messages, Files& files) {
    if (!LWM_file_write(project, messages, files)) return false;
    if (!project.LWMNotepad && !project.LWMCompile)
        Inform(messages, "Tidemark - File saved", "LWM file saved OK");
    return true;
}

}  // namespace tidemark
