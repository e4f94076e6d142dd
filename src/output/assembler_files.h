// Writing the two assembler files, with their refusals and messages.
//
// A file is replaced as a whole or not at all, and one that is none of ours only after a question.
// A refusal or a failed write is reported with Warn, a failed write naming the file and the reason,
// and leaves an old file of that name as it was.
#pragma once

#include "model/project.h"
#include "model/session.h"
#include "platform/files.h"
#include "platform/messages.h"

namespace tidemark {

// Writes VTPFileName. Refuses a project with a segment of one point, one with nothing to write, and
// one whose segments have a drawing mode outside the table. Sets VTPWriteFailed when it did not
// write the file; never clears it. The segment flags must agree (Repair_segments).
void VTP_file_write(const Project& project, Session& session, Messages& messages, Files& files);

// Writes LWMFileName; false when the file could not be written.
bool LWM_file_write(const Project& project, Messages& messages, Files& files);

// The commands "Save VTP data to file" and "Save LWM data to file" up to the actions after saving:
// write, and say that it is saved unless one of
// those actions will show it. True when the file was written.
bool Save_VTP_file(const Project& project, Session& session, Messages& messages, Files& files);
bool Save_LWM_file(const Project& project, Messages& messages, Files& files);

}  // namespace tidemark
