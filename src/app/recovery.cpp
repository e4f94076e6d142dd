#include "app/recovery.h"

#include <algorithm>
#include <utility>

#include "model/path_text.h"
#include "platform/folder.h"

namespace tidemark {

namespace {

constexpr std::string_view Ending = ".recovery";

// The slot of that name, its lock held unless another has it.
RecoverySlot Slot(const std::string& folder, const std::string& name) {
    const std::string path = folder + "/" + name;
    const std::string lock = path + ".lock";
    return {path + std::string(Ending), lock, FileLock(lock)};
}

FileResult Remove_file(const std::string& path, Files& files) {
    return files.Exists(path) ? files.Delete(path) : FileResult::Done();
}

}  // namespace

// What was written stays, should the program end without removing it.
Recovery::~Recovery() {
    if (!files_.Exists(slot_.File)) slot_.Lock.Remove();
}

LostWorks Recovery::Find_lost() {
    LostWorks lost;
    for (const std::string& name : Names_in(folder_)) {
        if (!name.ends_with(Ending)) continue;
        RecoverySlot slot = Slot(folder_, name.substr(0, name.size() - Ending.size()));
        if (!slot.Lock.Reason().empty())
            lost.Complaints.push_back(slot.LockFile + ": " + slot.Lock.Reason());
        // Its editor may have removed it before its lock was free.
        if (!slot.Lock.Is_held() || !files_.Exists(slot.File)) continue;
        std::string bytes;
        if (const FileResult read = files_.Read(slot.File, MaxRecoveryFileSize, bytes); !read) {
            lost.Complaints.push_back(slot.File + ": " + read.Reason());
            continue;
        }
        RecoveryFileReading reading = Read_recovery_file(bytes);
        if (reading.State == RecoveryFileState::Whole)
            lost.Found.push_back({std::move(slot), std::move(reading.Unsaved)});
        else if (reading.State == RecoveryFileState::Newer)
            lost.Complaints.push_back(slot.File + " was written by a newer version of Tidemark");
        else
            lost.Complaints.push_back(Set_aside(slot.File));
    }
    std::ranges::stable_sort(lost.Found, {},
                             [](const LostWork& work) { return work.Unsaved.Time; });
    return lost;
}

// Gives a damaged file a name under which it is not offered again; tells what became of it.
std::string Recovery::Set_aside(const std::string& file) {
    const std::string stem = file.substr(0, file.size() - Ending.size());
    std::string name = stem + ".damaged";
    for (int copy = 2; files_.Exists(name); ++copy)
        name = stem + "-" + std::to_string(copy) + ".damaged";
    const FileResult renamed = Rename_file(file, name);
    return file + " is damaged; " +
           (renamed ? "it is kept as " + Last_part(name) : "it stays: " + renamed.Reason());
}

void Recovery::Take_over(LostWork& lost, std::uint64_t state) {
    if (Remove()) slot_.Lock.Remove();
    slot_ = std::move(lost.Slot);
    schedule_.Taken_over(state);
}

FileResult Recovery::Discard(LostWork& lost) {
    FileResult removed = Remove_file(lost.Slot.File, files_);
    if (removed) lost.Slot.Lock.Remove();
    return removed;
}

// The first name that no editor has and that holds no lost work. A lock that cannot be had, such as
// one of another user, is no reason against the next name.
FileResult Recovery::Take_slot() {
    if (FileResult made = Make_folder(folder_); !made) return made;
    constexpr int most_slots = 1000;
    std::string reason = "Too many recovery files";
    for (int number = 1; number <= most_slots; ++number) {
        const std::string name = std::to_string(number);
        if (files_.Exists(folder_ + "/" + name + std::string(Ending))) continue;
        RecoverySlot slot = Slot(folder_, name);
        if (!slot.Lock.Reason().empty()) reason = slot.Lock.Reason();
        if (!slot.Lock.Is_held() || files_.Exists(slot.File)) continue;
        slot_ = std::move(slot);
        return FileResult::Done();
    }
    return FileResult::Failed(reason);
}

// A lock whose file is gone, as when a folder was cleaned out, keeps nobody away any more.
FileResult Recovery::Hold_slot() {
    if (slot_.Lock.Is_held() && !files_.Exists(slot_.LockFile) && Make_folder(folder_))
        slot_.Lock = FileLock(slot_.LockFile);
    return slot_.Lock.Is_held() ? FileResult::Done() : Take_slot();
}

FileResult Recovery::Tend(const std::string& project_path, const Project& project,
                          std::string_view time, Moment now) {
    const auto step = schedule_.Step_at(now);
    if (!step) return FileResult::Done();
    if (step == RecoveryStep::Remove) {
        FileResult removed = Remove();
        if (!removed) schedule_.Removal_failed(now);
        return removed;
    }
    return Write(project_path, project, time, now);
}

FileResult Recovery::Write(const std::string& project_path, const Project& project,
                           std::string_view time, Moment now) {
    FileResult written = Write_file(project_path, project, time);
    schedule_.Written(static_cast<bool>(written), now);
    return written;
}

FileResult Recovery::Write_file(const std::string& project_path, const Project& project,
                                std::string_view time) {
    if (const auto unsavable = Unsavable_text(project))
        return FileResult::Failed(*unsavable + " cannot be saved");
    if (FileResult held = Hold_slot(); !held) return held;
    return files_.Replace(slot_.File, Recovery_file_bytes(project_path, time, project));
}

FileResult Recovery::Remove() {
    FileResult removed = slot_.File.empty() ? FileResult::Done() : Remove_file(slot_.File, files_);
    if (removed) schedule_.Removed();
    return removed;
}

}  // namespace tidemark
