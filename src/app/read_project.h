// Reading a project's file, for the editor and the console companion alike.
#pragma once

#include <string>

#include "model/project.h"
#include "platform/files.h"

namespace tidemark {

// What became of reading a file: with IsRead the project is that of the file. What is wrong with
// it, or how it ended early, stands in Remark; empty when there is nothing to say.
struct ProjectFileResult {
    bool IsRead = false;
    int Line = 0;  // of the file, from 1, that the remark is about; 0: the whole file
    std::string Remark;
};

// Replaces the project by that of the file. One that is refused leaves it as it was.
ProjectFileResult Read_project_file(const std::string& path, Project& project, Files& files);

// Puts the tables of a project that was read right: its segment flags agree with one another, and
// no polygon repeats its first point at the end.
void Repair_project(Project& project);

}  // namespace tidemark
