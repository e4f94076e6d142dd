// The console companion for coasts: projects made of coast files, cell by cell, without a screen.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "app/coast_project.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace tidemark {

struct CoastTask {
    CoastProjectOptions Options;
    std::vector<WorldCell> Cells;  // empty: all that the coast runs through
    std::string OutputFolder;
    std::vector<std::string> Coasts;  // files; together they are one coast
    unsigned Threads = 1;             // that work on cells at the same time
};

// Writes the projects of each cell into the folder, where they replace older ones of the same name;
// a project of further polygons that the cell no longer needs is removed. A cell whose first
// project is newer than all coast files and was made of them with these options (coast_upkeep.h) is
// up to date and passed over.
// Prints a line for each project to `out`, by cell; what is wrong goes to `errors`, with remarks on
// what was left out. True when nothing was refused and no project has an error.
//
// The files are read once for every few hundred cells, and once before to find the cells when none
// are named; memory grows with what the coast has in so many cells, not with its whole size.
bool Write_coast_projects(const CoastTask& task, Files& files, Clock& clock, std::ostream& out,
                          std::ostream& errors);

}  // namespace tidemark
