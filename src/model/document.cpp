#include "model/document.h"

namespace tidemark {

Document::Document(Session& session, std::size_t most_bytes)
    : session_(session),
      most_bytes_(most_bytes),
      now_(std::make_unique<Project>()),
      settled_(std::make_unique<Project>()),
      saved_(std::make_unique<Project>()) {}

Document::~Document() = default;

Document::Transaction::Transaction(Document& document)
    : document_(document), session_(document.session_) {
    if (document_.depth_ > 0) project_ = std::make_unique<Project>(*document_.now_);
    ++document_.depth_;
}

// What is on the screen may be of the change that failed.
Document::Transaction::~Transaction() {
    if (committed_) return;
    *document_.now_ = project_ ? *project_ : *document_.settled_;
    document_.session_ = session_;
    if (--document_.depth_ > 0) return;
    document_.is_step_ = document_.is_saved_by_step_ = false;
    try {
        document_.announce_();
    } catch (...) {
        // The exception on its way is the one to be reported.
    }
}

void Document::Transaction::Commit(Kind kind, std::string name) {
    if (kind == Kind::Step) {
        document_.is_step_ = true;
        document_.step_name_ = std::move(name);  // the outermost commits last
    }
    if (document_.depth_ == 1) document_.Record(session_);
    committed_ = true;
    if (--document_.depth_ == 0) document_.Finish_step();
}

void Document::Record(const Session& before) {
    const Circumstances after = Circumstances_now();
    ProjectChange change(*settled_, *now_);
    const bool is_change = !change.Is_empty() || settled_->ProjectFile != now_->ProjectFile;
    if (is_step_ && is_change) {
        for (const Step& step : undone_) bytes_ -= step.Bytes();
        undone_.clear();
        Step step{step_name_,
                  std::move(change),
                  {before.Panel, settled_->PointInCellX, settled_->PointInCellY},
                  after,
                  Renamed_since(before)};
        bytes_ += step.Bytes();
        done_.push_back(std::move(step));
        Drop_oldest();
    } else {
        // Where the builder looked belongs to the state that the steps around it lead to.
        const auto amend = [&after](Circumstances& circumstances) {
            circumstances.PointInCellX = after.PointInCellX;
            circumstances.PointInCellY = after.PointInCellY;
        };
        if (!done_.empty()) amend(done_.back().After);
        if (!undone_.empty()) amend(undone_.back().Before);
    }
    const bool looked_elsewhere = after.PointInCellX != settled_->PointInCellX ||
                                  after.PointInCellY != settled_->PointInCellY;
    *settled_ = *now_;
    if (is_change || looked_elsewhere) ++state_;
}

// Null when the names are as they were.
std::unique_ptr<Document::Renaming> Document::Renamed_since(const Session& before) const {
    const Names old_names{settled_->ProjectFile, before.Opened};
    const Names new_names{now_->ProjectFile, session_.Opened};
    const bool is_opening = old_names.ProjectFile != new_names.ProjectFile ||
                            old_names.Opened.Opening != new_names.Opened.Opening;
    if (!is_opening && old_names.Opened == new_names.Opened) return nullptr;
    return std::make_unique<Renaming>(Renaming{old_names, new_names, is_opening});
}

void Document::Finish_step() {
    settled_opened_ = session_.Opened;
    is_step_ = false;
    if (std::exchange(is_saved_by_step_, false)) Mark_saved();
    announce_();
}

void Document::Drop_oldest() {
    while (bytes_ > most_bytes_ && !done_.empty()) {
        bytes_ -= done_.front().Bytes();
        done_.pop_front();
    }
}

Document::Circumstances Document::Circumstances_now() const {
    return {session_.Panel, now_->PointInCellX, now_->PointInCellY};
}

void Document::Undo() {
    if (!Can_undo()) return;
    Travel([this] {
        Step& step = done_.back();
        step.Change.Revert(*now_);
        if (step.Renamed) Exchange_names(*step.Renamed, step.Renamed->After, step.Renamed->Before);
        Put_back(step.Before);
        undone_.push_back(std::move(step));
        done_.pop_back();
    });
}

void Document::Redo() {
    if (!Can_redo()) return;
    Travel([this] {
        Step& step = undone_.back();
        step.Change.Apply(*now_);
        if (step.Renamed) Exchange_names(*step.Renamed, step.Renamed->Before, step.Renamed->After);
        Put_back(step.After);
        done_.push_back(std::move(step));
        undone_.pop_back();
    });
}

template <class Change>
void Document::Travel(const Change& change) {
    try {
        change();
    } catch (...) {
        *now_ = *settled_;
        throw;
    }
    *settled_ = *now_;
    settled_opened_ = session_.Opened;
    ++state_;
    session_.DataChanged = Differs_from_saved();
    announce_();
}

// A project that was saved under another name since the step has the names it is left with when it
// is come to again.
void Document::Exchange_names(const Renaming& renamed, Names& left, const Names& come_to) {
    if (!renamed.IsOpening) {
        session_.Opened.Picture = come_to.Opened.Picture;
        return;
    }
    left = {now_->ProjectFile, session_.Opened};
    now_->ProjectFile = come_to.ProjectFile;
    session_.Opened = come_to.Opened;
}

void Document::Put_back(const Circumstances& circumstances) {
    session_.Panel = circumstances.Panel;
    now_->PointInCellX = circumstances.PointInCellX;
    now_->PointInCellY = circumstances.PointInCellY;
}

void Document::Mark_saved() {
    is_saved_by_step_ = depth_ > 0;
    if (is_saved_by_step_) return;
    *saved_ = *now_;
    session_.DataChanged = false;
}

void Document::Forget() {
    done_.clear();
    undone_.clear();
    bytes_ = 0;
}

std::size_t Document::Step::Bytes() const {
    const std::size_t renamed = Renamed ? sizeof(Renaming) : 0;
    return sizeof(Step) + Name.capacity() + Change.Bytes() + renamed;
}

}  // namespace tidemark
