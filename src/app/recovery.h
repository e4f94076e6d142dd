// Work that is not saved, kept for the case that the editor does not get to saving it: one recovery
// file for each running editor, under a lock that ends with it. Whose lock is free was lost.
//
// All stand in one folder: N.recovery (app/recovery_file.h), its lock N.lock, and N.damaged, which
// is one that could not be read and is left to the user.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/recovery_file.h"
#include "app/recovery_schedule.h"
#include "platform/file_lock.h"
#include "platform/files.h"

namespace tidemark {

// A recovery file and its lock.
struct RecoverySlot {
    std::string File, LockFile;
    FileLock Lock;
};

// Work that an editor left behind. Nobody else is offered it as long as this is kept; it is offered
// again when this is forgotten.
struct LostWork {
    RecoverySlot Slot;
    UnsavedWork Unsaved;

    int Points() const { return Unsaved.Work->VTPCount; }
    int Polygons() const { return Unsaved.Work->LWMCount; }
    int ClearedCells() const { return Unsaved.Work->KillCount; }
};

struct LostWorks {
    std::vector<LostWork> Found;          // the oldest first
    std::vector<std::string> Complaints;  // a line for each file that could not be read
};

class Recovery {
  public:
    using Moment = RecoverySchedule::Moment;

    // `folder` is made when something is first written (State_folder).
    Recovery(std::string folder, Files& files) : folder_(std::move(folder)), files_(files) {}
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    // Work of editors that are gone. A damaged file gets another name and a complaint; one that a
    // newer Tidemark has written, or that cannot be read now, stays and gets a complaint.
    LostWorks Find_lost();

    // Goes on with lost work as this editor's own, whose project it is now, not saved, in the state
    // of that number. Its file is this editor's from now on, so that the work is never without one.
    void Take_over(LostWork& lost, std::uint64_t state);

    // Removes lost work for good.
    FileResult Discard(LostWork& lost);

    // Tells of a change (RecoverySchedule::Changed). Tend is to be called when Next comes.
    void Changed(std::uint64_t state, bool is_unsaved, Moment now) {
        schedule_.Changed(state, is_unsaved, now);
    }
    std::optional<Moment> Next() const { return schedule_.Next(); }

    // Writes the project or removes what was written, if that is due. A failure says why; it is
    // tried again after the pause.
    FileResult Tend(const std::string& project_path, const Project& project, std::string_view time,
                    Moment now);

    // Writes the project at once, saved or not.
    FileResult Write(const std::string& project_path, const Project& project, std::string_view time,
                     Moment now);

    // Removes what was written at once: at an orderly exit, saved or given up.
    FileResult Remove();

    // Where the work is written to; empty before it first was.
    const std::string& File() const { return slot_.File; }

  private:
    FileResult Take_slot();
    FileResult Hold_slot();
    FileResult Write_file(const std::string& project_path, const Project& project,
                          std::string_view time);
    std::string Set_aside(const std::string& file);

    const std::string folder_;
    Files& files_;
    RecoverySlot slot_;
    RecoverySchedule schedule_;
};

}  // namespace tidemark
