#include "platform/replace_file.h"

#include <system_error>

namespace tidemark {

namespace {

FileResult Replace_by_rename(Replacement& steps, std::string_view bytes) {
    if (FileResult filled = steps.Fill_temporary(bytes); !filled) return filled;
    return steps.Rename_over_target();
}

FileResult Copy_target(Replacement& steps, std::string& bytes, std::string& name) {
    if (FileResult read = steps.Read_target(bytes); !read) return read;
    if (FileResult filled = steps.Fill_temporary(bytes); !filled) return filled;
    return steps.Keep_as_copy(name);
}

FileResult Replace_in_place(Replacement& steps, std::string_view bytes) {
    std::string old_bytes, copy;
    if (FileResult copied = Copy_target(steps, old_bytes, copy); !copied) return copied;
    FileResult written = steps.Fill_target(bytes);
    if (!written && !steps.Fill_target(old_bytes))
        return FileResult::Failed(written.Reason() + "; what the file held is kept in " + copy);
    steps.Remove_copy();
    return written;
}

}  // namespace

FileResult Replace_file(Replacement& steps, const std::string& path, std::string_view bytes) {
    if (path.find('\0') != path.npos)
        return FileResult::Failed(std::make_error_code(std::errc::invalid_argument).message());
    if (FileResult found = steps.Find_target(path); !found) return found;
    if (FileResult created = steps.Create_temporary(); !created) return created;
    FileResult replaced = steps.Take_on_attributes() ? Replace_by_rename(steps, bytes)
                                                     : Replace_in_place(steps, bytes);
    if (replaced) steps.Remove_leftovers();
    return replaced;
}

FileResult DiskFiles::Replace(const std::string& path, std::string_view bytes) {
    return Replace_file(*Replacement_on_disk(), path, bytes);
}

}  // namespace tidemark
