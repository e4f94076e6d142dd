// The console companion: the assembler files of projects, without a screen.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tidemark {

struct CompanionTask {
    std::string OutputFolder;  // empty: each file goes where its name says
    std::vector<std::string> Projects;
    bool ChecksOnly = false;  // nothing is written
};

// Writes the assembler files of each project: the VTP file, unless polygons are all that there is
// to write, and the LWM file when there are polygons. A name that the project does not hold is the
// project's own with -VTP.asm or -LWM.asm. Prints a line for each file written to `out`; refusals
// go to `errors` after the project's name. The two files of a project, and the projects, do not
// depend on one another, but no file is written twice, and none is replaced that was not written
// here. Errors that the coast check finds go to `errors` and keep no file from being written. True
// when nothing was refused.
//
// To check only, prints everything that the coast check finds to `out`, remarks too. True when
// every project could be read and none has an error.
bool Write_assembler_files(const CompanionTask& task, Files& files, std::ostream& out,
                           std::ostream& errors);

}  // namespace tidemark
