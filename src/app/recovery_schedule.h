// When work that is not saved has to be written, and when what was written is to go.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace tidemark {

enum class RecoveryStep { Write, Remove };

// Moments are those of a clock that is never put back. A write is due within 2 s of a change, a
// little after it so that changes which come together are written together, and 2 s after the last
// one; never while nothing has changed. Work that is saved, or is again as it was saved, is removed
// at once.
class RecoverySchedule {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::milliseconds Pause{2000};       // from one write to the next
    static constexpr std::chrono::milliseconds Collecting{1000};  // from a change to its write

    // The project has come to the state of that number, which no other state has; whether it
    // differs from what is saved.
    void Changed(std::uint64_t state, bool is_unsaved, Moment now);

    // What is to be done at that moment, or when there is something to do.
    std::optional<RecoveryStep> Step_at(Moment now) const;
    std::optional<Moment> Next() const;

    // What has been done: the present state was written, or could not be; what was written is gone;
    // what another has written of a state that is not saved is here.
    void Written(bool successfully, Moment now);
    void Removed() { written_ = std::nullopt; }
    void Removal_failed(Moment now) { removal_failed_at_ = now; }
    void Taken_over(std::uint64_t state) { unsaved_ = written_ = state; }

  private:
    bool Is_pending() const { return unsaved_ && unsaved_ != written_; }

    std::optional<std::uint64_t> unsaved_, written_;  // states
    Moment changed_at_, tried_at_;
    std::optional<Moment> removal_failed_at_;  // since the last change
    bool was_tried_ = false;
};

}  // namespace tidemark
