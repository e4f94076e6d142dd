// A whole platform of doubles for rules that need several of its services.
#pragma once

#include <deque>
#include <vector>

#include "fakes/memory_files.h"
#include "fakes/recording_messages.h"
#include "fakes/recording_programs.h"
#include "platform/platform.h"

namespace tidemark {

// Choosers that are written down and answered by the test; cancelled when no answer is left.
class RecordingChoosers : public Choosers {
  public:
    std::vector<FileChooser> Shown;
    std::deque<std::optional<std::string>> Answers;

    std::optional<std::string> Choose(const FileChooser& chooser) override {
        Shown.push_back(chooser);
        if (Answers.empty()) return std::nullopt;
        const auto answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};

class StoppedClock : public Clock {
  public:
    std::string Now_text() override { return "now"; }
};

struct FakePlatform {
    RecordingMessages messages;
    RecordingChoosers choosers;
    MemoryFiles files;
    StoppedClock clock;
    RecordingPrograms programs;
    Platform platform{messages, choosers, files, clock, programs, "/start"};
};

}  // namespace tidemark
