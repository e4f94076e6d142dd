// What a POSIX file has besides its bytes.
#pragma once

#include <string>
#include <sys/stat.h>

namespace tidemark {

// Gives the open file `made` the owner, the group, the permissions and the extended attributes
// (access lists are among them) of the file at `path`, whose status is `old`. False at the first
// that is refused. What is equal already is not asked for: a file system that has one owner and one
// set of permissions for all refuses even that.
bool Copy_attributes(const std::string& path, const struct stat& old, int made);

// The permissions that a new file gets.
mode_t New_file_permissions();

}  // namespace tidemark
