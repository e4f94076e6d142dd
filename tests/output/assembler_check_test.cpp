// The stand-in compiler's check: takes what the writers write, and nothing that differs from it.
#include "standin/assembler_check.h"

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "fakes/sample_projects.h"
#include "model/project_file.h"
#include "model/segments.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {
namespace {

std::string Complaint(const std::string& bytes) {
    const auto error = Check_assembler(bytes);
    return error ? "line " + std::to_string(error->Line) + ": " + error->What : "";
}

TEST(AssemblerCheckTest, TakesBothFilesOfEveryProject) {
    Project sample;
    std::ostringstream bytes;
    bytes << std::ifstream(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM", std::ios::binary).rdbuf();
    ASSERT_FALSE(Read_project(bytes.str(), sample).Error);
    Repair_segments(sample);
    ASSERT_GT(sample.VTPCount, 0);
    Project largest = Largest_project();
    largest.BGLOD8X = 767;
    largest.BGLOD8Y = 511;
    for (const Project& project : {sample, largest, Project()}) {
        EXPECT_EQ(Complaint(VTP_file_bytes(project)), "");
        EXPECT_EQ(Complaint(LWM_file_bytes(project)), "");
    }
}

Project Small_project() {
    Project p;
    Add_segment(p, 1, 80, {{5460, 6000}, {5500, 6100}, {5600, 6150}});
    std::vector<std::pair<int, int>> long_segment(40, {6000, 6000});
    Add_segment(p, 9, 12, long_segment);
    Add_polygon(p, 12, 7, 11, 15, 4);
    Add_polygon(p, 12, 8, 10, -9999, 70);
    return p;
}

TEST(AssemblerCheckTest, NamesTheLineAndWhatIsWrongThere) {
    const Project project = Small_project();
    const std::string vtp = VTP_file_bytes(project);
    const std::string lwm = LWM_file_bytes(project);
    struct Case {
        const std::string& Text;
        const char *Pattern, *Replacement;
        std::string Complaint;
    };
    for (const auto& [text, pattern, replacement, complaint] : {
             Case{vtp, "TDFHeaders", "Headers", "line 7: unknown include file Headers.inc"},
             {vtp, "include TDFMacros.inc", "; none", "line 10: a macro before the include files"},
             {vtp, " VTPHeader\r\n", "\r\n", "line 10: BGLHeader: bad argument "},
             {vtp, ", VTPHeader\r\n", "\r\n", "line 10: BGLHeader takes 6 arguments, not 5"},
             {vtp, "VTPFileHeader 256", "VTPFileHeader 99999",
              "line 13: VTPFileHeader: bad argument 99999"},
             {vtp, "VTPStart        label", "VTPStart label", ""},
             {vtp, "VTPStart        label", "VTPStrt label", "line 103: undefined label VTPStart"},
             {vtp, "VTPEnd      label   word", "VTPStart label word",
              "label defined twice: VTPStart"},
             {vtp, "VTPLayer 8, 1", "VTPLayers 8, 1", "unknown macro VTPLayers"},
             {vtp, "VTPLayer 8, 1", "VTPLayer 8", "VTPLayer takes 2 arguments, not 1"},
             {vtp, "VTPLayer 8, 1", "VTPLayer 8, x", "VTPLayer: bad argument x"},
             {vtp, "\"1029\"", "1029", "VTPTextureName: bad argument 1029"},
             {vtp, "VTPPolyMethod2 7", "VTPPolyMethod2 8", "1 VTPWidePoint less than announced"},
             {vtp, "VTPPolyMethod2Ex 13", "VTPPolyMethod2Ex 12",
              "one VTPWidePoint more than announced"},
             {vtp, "VTPPolyCount 1, 0", "VTPPolyCount 2, 0",
              "1 VTPPolyMethod2 less than announced"},
             {vtp, "VTPHeader\r\n", "VTPHeader\n", "a line end or a tab inside the line"},
             {vtp, "\r\n \r\n", "\r\n\r\n", "line 4: the line is empty"},
             {vtp, "End of VTP file\r\n", "End of VTP file", "the line does not end with CR LF"},
             {lwm, "LWMPoly2 4, 0", "LWMPoly2 4", "LWMPoly2 takes 5 arguments, not 4"},
             {lwm, "LWMPoly2Ex 63", "LWMPoly2Ex 62", "one LWMPoint more than announced"},
             {lwm, "0, 7\r\n", "0, 8\r\n", "1 LWMPoint less than announced"},
             {lwm, "LWMStart, LWMEnd", "LWMStart, LWMFinish", "undefined label LWMFinish"},
         }) {
        const auto position = text.find(pattern);
        ASSERT_NE(position, text.npos) << pattern;
        const std::string changed =
            std::string(text).replace(position, std::string_view(pattern).size(), replacement);
        const std::string found = Complaint(changed);
        if (complaint.empty())
            EXPECT_EQ(found, "") << pattern;
        else
            EXPECT_TRUE(found.ends_with(complaint)) << pattern << " gives " << found;
    }
}

}  // namespace
}  // namespace tidemark
