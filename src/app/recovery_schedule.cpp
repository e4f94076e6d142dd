#include "app/recovery_schedule.h"

#include <algorithm>

namespace tidemark {

void RecoverySchedule::Changed(std::uint64_t state, bool is_unsaved, Moment now) {
    const bool was_pending = Is_pending();
    removal_failed_at_ = std::nullopt;
    unsaved_ = is_unsaved ? std::optional(state) : std::nullopt;
    if (!was_pending) changed_at_ = now;
}

std::optional<RecoverySchedule::Moment> RecoverySchedule::Next() const {
    if (!unsaved_ && !written_) return std::nullopt;
    if (!unsaved_) return removal_failed_at_ ? *removal_failed_at_ + Pause : changed_at_;
    if (!Is_pending()) return std::nullopt;
    const Moment collected = changed_at_ + Collecting;
    return was_tried_ ? std::max(collected, tried_at_ + Pause) : collected;
}

std::optional<RecoveryStep> RecoverySchedule::Step_at(Moment now) const {
    const auto next = Next();
    if (!next || now < *next) return std::nullopt;
    return unsaved_ ? RecoveryStep::Write : RecoveryStep::Remove;
}

void RecoverySchedule::Written(bool successfully, Moment now) {
    tried_at_ = now;
    was_tried_ = true;
    if (successfully) written_ = unsaved_;
}

}  // namespace tidemark
