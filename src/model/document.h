// The gate that every change of the project passes, and the history of what has passed it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "model/project.h"
#include "model/project_change.h"
#include "model/session.h"

namespace tidemark {

// Bytes, the most that the history of a document takes.
inline constexpr std::size_t MaxHistoryBytes = std::size_t{64} << 20;

// Holds the project, which can be seen everywhere and changed here only. Each command of the user
// is one step, which can be undone and redone. With the project a step takes back what belongs to
// it of the session: the state of the panel, and the names under which a project was opened.
class Document {
  public:
    // `most_bytes` is what the history may take; the oldest steps go first.
    explicit Document(Session& session, std::size_t most_bytes = MaxHistoryBytes);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document();

    const Project& Now() const { return *now_; }
    // The project, and the names it goes by, as the last step left them, while another one is in
    // progress.
    const Project& Settled() const { return *settled_; }
    const OpenedState& Settled_opened() const { return settled_opened_; }
    bool Is_in_step() const { return depth_ > 0; }

    // The number of the state that the project is in; every other state it was or will be in has
    // another one.
    std::uint64_t State() const { return state_; }

    // Called once after each step, and after what turned out to be none.
    void Announce_to(std::function<void()> announce) { announce_ = std::move(announce); }

    // Runs change(Project&) as one step, or as a part of the one in progress, and returns its
    // result. `name` completes "Undo: ", such as "delete point 57". A change that changed nothing
    // of the project is no step. When an exception leaves it, the project and the session are as
    // they were before.
    template <class Change>
    auto Do(std::string name, const Change& change) {
        return Run(Kind::Step, std::move(name), change);
    }

    // The same for what is no step of its own: a name that the project is saved under, a picture
    // that is loaded again. It stays when steps are undone. With a step inside, it is one.
    template <class Change>
    auto Settle(const Change& change) {
        return Run(Kind::Remark, "", change);
    }

    // Neither does anything while a step is in progress. DataChanged then tells whether the project
    // differs from the one last marked as saved.
    void Undo();
    void Redo();
    bool Can_undo() const { return depth_ == 0 && !done_.empty(); }
    bool Can_redo() const { return depth_ == 0 && !undone_.empty(); }
    // The name of the step that Undo (Redo) would take back (do again); empty when there is none.
    std::string What_undo() const { return done_.empty() ? "" : done_.back().Name; }
    std::string What_redo() const { return undone_.empty() ? "" : undone_.back().Name; }

    // The project is what its file holds now, or will be so at the end of the step in progress.
    // Clears DataChanged.
    void Mark_saved();
    // Whether the project differs from what its file holds.
    bool Differs_from_saved() const { return !(*settled_ == *saved_); }

    std::size_t History_bytes() const { return bytes_; }
    void Forget();  // the whole history

  private:
    enum class Kind { Step, Remark };

    // What is kept with each step because the next click or a title depends on it.
    struct Circumstances {
        PanelState Panel;
        Int16 PointInCellX, PointInCellY;
    };
    // The names around a step that has changed them, as they were when it was last come to or left.
    struct Names {
        std::string ProjectFile;
        OpenedState Opened;
    };
    struct Renaming {
        Names Before, After;
        bool IsOpening;  // another project: all names; otherwise it is the picture alone
    };
    struct Step {
        std::string Name;
        ProjectChange Change;
        Circumstances Before, After;
        std::unique_ptr<Renaming> Renamed;  // null when the step left the names as they were

        std::size_t Bytes() const;
    };

    // Made before a change; unless it is committed, its end takes everything back to what it was
    // then.
    class Transaction {
      public:
        explicit Transaction(Document& document);
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;
        ~Transaction();

        void Commit(Kind kind, std::string name);

      private:
        Document& document_;
        const Session session_;
        std::unique_ptr<Project> project_;  // of a nested one; the outermost goes back to settled_
        bool committed_ = false;
    };

    template <class Change>
    auto Run(Kind kind, std::string name, const Change& change) {
        Transaction transaction(*this);
        if constexpr (std::is_void_v<decltype(change(*now_))>) {
            change(*now_);
            transaction.Commit(kind, std::move(name));
        } else {
            auto result = change(*now_);
            transaction.Commit(kind, std::move(name));
            return result;
        }
    }

    void Record(const Session& before);
    void Finish_step();
    std::unique_ptr<Renaming> Renamed_since(const Session& before) const;
    void Drop_oldest();
    Circumstances Circumstances_now() const;
    void Put_back(const Circumstances& circumstances);
    void Exchange_names(const Renaming& renamed, Names& left, const Names& come_to);
    template <class Change>
    void Travel(const Change& change);

    Session& session_;
    const std::size_t most_bytes_;
    std::unique_ptr<Project> now_, settled_, saved_;
    OpenedState settled_opened_;
    std::deque<Step> done_, undone_;  // undone_.back() is the next to be redone
    std::size_t bytes_ = 0;           // of both
    std::uint64_t state_ = 0;
    int depth_ = 0;  // of the calls of Do that are in progress
    // Of the outermost of them, so far.
    bool is_step_ = false, is_saved_by_step_ = false;
    std::string step_name_;
    std::function<void()> announce_ = [] {};
};

}  // namespace tidemark
