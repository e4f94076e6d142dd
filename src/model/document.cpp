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

Document::Transaction::~Transaction() {
    if (committed_) return;
    --document_.depth_;
    *document_.now_ = project_ ? *project_ : *document_.settled_;
    document_.session_ = session_;
}

void Document::Transaction::Commit(Kind kind, std::string name) {
    if (document_.depth_ == 1) document_.Record(kind, std::move(name), session_);
    committed_ = true;
    if (--document_.depth_ == 0) document_.announce_();
}

void Document::Record(Kind kind, std::string name, const Session& before) {
    const Circumstances after = Circumstances_now();
    ProjectChange change(*settled_, *now_);
    const bool is_change = !change.Is_empty();
    if (kind == Kind::Step && is_change) {
        for (const Step& step : undone_) bytes_ -= step.Bytes();
        undone_.clear();
        Step step{std::move(name),
                  std::move(change),
                  {before.Panel, settled_->PointInCellX, settled_->PointInCellY},
                  after,
                  nullptr};
        if (before.Opened != session_.Opened)
            step.Renamed.reset(new Renaming{before.Opened, session_.Opened});
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
    const Step& step = done_.back();
    step.Change.Revert(*now_);
    if (step.Renamed) Rename(step.Renamed->After, step.Renamed->Before);
    Put_back(step.Before);
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    Finish_travel();
}

void Document::Redo() {
    if (!Can_redo()) return;
    const Step& step = undone_.back();
    step.Change.Apply(*now_);
    if (step.Renamed) Rename(step.Renamed->Before, step.Renamed->After);
    Put_back(step.After);
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    Finish_travel();
}

// Only what the step itself changed: a project that was saved under another name since keeps it.
void Document::Rename(const OpenedState& from, const OpenedState& to) {
    OpenedState& now = session_.Opened;
    if (from.Path != to.Path) now.Path = to.Path;
    if (from.Folder != to.Folder) now.Folder = to.Folder;
    if (from.Picture != to.Picture) now.Picture = to.Picture;
    if (from.FileSave != to.FileSave) now.FileSave = to.FileSave;
}

void Document::Put_back(const Circumstances& circumstances) {
    session_.Panel = circumstances.Panel;
    now_->PointInCellX = circumstances.PointInCellX;
    now_->PointInCellY = circumstances.PointInCellY;
}

void Document::Finish_travel() {
    *settled_ = *now_;
    ++state_;
    session_.DataChanged = Differs_from_saved();
    announce_();
}

void Document::Mark_saved() {
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
