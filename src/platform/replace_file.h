// Replacing a file as a whole: one order of steps, written once for every system.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tidemark {

// The steps of one replacement, as a system takes them. The target is the file that is replaced;
// the temporary file stands beside it until it takes its place.
class Replacement {
  public:
    virtual ~Replacement() = default;

    // Finds the target: the file that `path` leads to through links, whether it is there or not.
    // Refuses what is no regular file, and one that may not be written.
    virtual FileResult Find_target(const std::string& path) = 0;

    // Makes an empty temporary file. It is gone with this object; that of a process that was killed
    // is removed by a later Remove_leftovers.
    virtual FileResult Create_temporary() = 0;

    // Gives the temporary file all that the target has besides its bytes: owner, group, permissions
    // and extended attributes. False when the system refuses or when the target has a second name:
    // it can then only be kept by writing into the target itself.
    virtual bool Take_on_attributes() = 0;

    // Makes `bytes` all that the file holds, flushes them to the disk and checks its length.
    virtual FileResult Fill_temporary(std::string_view bytes) = 0;
    virtual FileResult Fill_target(std::string_view bytes) = 0;

    virtual FileResult Read_target(std::string& bytes) = 0;

    // Puts the temporary file in the target's place.
    virtual FileResult Rename_over_target() = 0;

    // Gives the temporary file a name of its own, to be seen by the user and left alone by
    // Remove_leftovers, and tells it. Remove_copy takes it away again.
    virtual FileResult Keep_as_copy(std::string& name) = 0;
    virtual void Remove_copy() = 0;

    // Removes temporary files in the target's folder whose process is gone.
    virtual void Remove_leftovers() = 0;
};

// The steps on this machine's own file system.
std::unique_ptr<Replacement> Replacement_on_disk();

// Makes `bytes` the content of the file that `path` leads to, whole or not at all: written beside
// it and renamed over it, or, where that would lose an owner or a link, written into it once a copy
// of it is safe beside it. After a failure the file is as it was; should even putting it back fail,
// the reason names the copy.
FileResult Replace_file(Replacement& steps, const std::string& path, std::string_view bytes);

}  // namespace tidemark
