// All that the program asks of its surroundings, handed to the rules as one.
#pragma once

#include <string>

#include "platform/choosers.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/patience.h"
#include "platform/programs.h"

namespace tidemark {

// The members are not capitalised as elsewhere: their types have those names.
struct Platform {
    Messages& messages;
    Choosers& choosers;
    Files& files;
    Clock& clock;
    Programs& programs;
    Patience& patience;
    std::string StartFolder;  // the folder that was current at start-up: where choosers begin
};

}  // namespace tidemark
