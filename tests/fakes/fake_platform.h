// A platform that lives in memory: what the rules ask of it is written down, and the test says how
// it answers.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <strings.h>

#include "fakes/recording_messages.h"
#include "platform/platform.h"
#include "platform/programs.h"

namespace tidemark {

// Choosers are cancelled when no answer is left.
class RecordingChoosers : public Choosers {
  public:
    std::vector<FileChooser> Shown;
    std::deque<std::optional<std::string>> Answers;

    std::optional<std::string> Choose(const FileChooser& chooser) override {
        Shown.push_back(chooser);
        return Next_of(Answers, {});
    }
};

class StoppedClock : public Clock {
  public:
    std::string Now_text() override { return "now"; }
};

class MemoryFiles : public Files {
  public:
    std::map<std::string, std::string> Content;
    std::string WriteError;  // when not empty, every write fails with it
    std::set<std::string> Undeletable;

    bool Exists(const std::string& path) override { return Content.contains(path); }
    std::string Full_path(const std::string& path) override { return path; }

    bool Is_same_file(const std::string& path, const std::string& other) override {
        return path == other && Exists(path);
    }

    std::optional<std::string> Find(const std::string& path) override {
        if (Exists(path)) return path;
        for (const auto& [name, content] : Content)
            if (strcasecmp(name.c_str(), path.c_str()) == 0) return name;
        return std::nullopt;
    }

    std::optional<std::uintmax_t> Size(const std::string& path) override {
        return Exists(path) ? std::optional(Content[path].size()) : std::nullopt;
    }

    FileResult Delete(const std::string& path) override {
        const bool deleted = !Undeletable.contains(path) && Content.erase(path) == 1;
        return deleted ? FileResult::Done() : FileResult::Failed("Permission denied");
    }

    FileResult Read(const std::string& path, std::uintmax_t limit, std::string& bytes) override {
        if (!Exists(path)) return FileResult::Failed("No such file or directory");
        if (Content[path].size() > limit) return FileResult::Failed("File too large");
        bytes = Content[path];
        return FileResult::Done();
    }

    FileResult Read_start(const std::string& path, std::uintmax_t most,
                          std::string& bytes) override {
        if (!Exists(path)) return FileResult::Failed("No such file or directory");
        bytes = Content[path].substr(0, most);
        return FileResult::Done();
    }

    FileResult Replace(const std::string& path, std::string_view bytes) override {
        if (!WriteError.empty()) return FileResult::Failed(WriteError);
        Content[path] = bytes;
        return FileResult::Done();
    }
};

class RecordingPrograms : public Programs {
  public:
    Texts Shown;
    std::vector<Command> Started;
    bool CanShow = true, CanStart = true;
    std::string Advice;             // of a start that fails
    std::optional<ProgramEnd> End;  // of what was started

    bool Show_text(const std::string& path) override { return Show_document(path); }
    bool Show_document(const std::string& address) override {
        Shown.push_back(address);
        return CanShow;
    }

    ProgramStart Start(const Command& command) override {
        Started.push_back(command);
        if (!CanStart) return {nullptr, Advice};
        return {std::make_unique<Running>(End), ""};
    }

  private:
    struct Running : RunningProgram {
        explicit Running(const std::optional<ProgramEnd>& end) : end_(end) {}
        std::optional<ProgramEnd> End() override { return end_; }
        const std::optional<ProgramEnd>& end_;
    };
};

// Waiting takes no time, but meanwhile something may happen.
class RecordingPatience : public Patience {
  public:
    std::function<void()> Meanwhile = [] {};
    int Waited = 0;            // milliseconds
    int CancelledAfter = 1e9;  // the same
    std::string Outcome;

    bool Wait(const std::string&, int milliseconds) override {
        Wait_a_moment(milliseconds);
        return Waited < CancelledAfter;
    }
    void Wait_a_moment(int milliseconds) override {
        Waited += milliseconds;
        Meanwhile();
    }
    void Over(const std::string& outcome) override { Outcome = outcome; }
};

struct FakePlatform {
    RecordingMessages messages;
    RecordingChoosers choosers;
    MemoryFiles files;
    StoppedClock clock;
    RecordingPrograms programs;
    RecordingPatience patience;
    Platform platform{messages, choosers, files, clock, programs, patience, "/start"};
};

}  // namespace tidemark
