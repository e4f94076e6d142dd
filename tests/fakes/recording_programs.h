// Programs that are written down instead of started, and waiting that takes no time.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/patience.h"
#include "platform/programs.h"

namespace tidemark {

class RecordingPrograms : public Programs {
  public:
    std::vector<std::string> Shown;
    std::vector<Command> Started;
    bool CanShow = true;
    bool CanStart = true;
    std::string Advice;  // when it cannot start
    bool Ended = false;  // whether what was started has ended

    ProgramStart Start(const Command& command) override {
        Started.push_back(command);
        if (!CanStart) return {nullptr, Advice};
        return {std::make_unique<Running>(Ended), ""};
    }

    bool Show(const std::string& document) override {
        Shown.push_back(document);
        return CanShow;
    }

  private:
    class Running : public RunningProgram {
      public:
        explicit Running(const bool& ended) : ended_(ended) {}
        bool Has_ended() override { return ended_; }

      private:
        const bool& ended_;
    };
};

class FakePatience : public Patience {
  public:
    int Waited = 0;  // milliseconds
    std::string WhatFor;
    std::function<void(int)> Meanwhile;  // runs at every wait with the milliseconds so far

    void Wait(const std::string& what_for, int milliseconds) override {
        WhatFor = what_for;
        Waited += milliseconds;
        if (Meanwhile) Meanwhile(Waited);
    }
};

}  // namespace tidemark
