// What the status bar says.
#include "app/status_texts.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(StatusTextsTest, SayHowFullTheProjectIsAndWhatHasHappened) {
    using Text = std::string (*)(const Given& given);
    const std::map<std::string, Text> texts{
        {"counts",
         [](const Given& given) {
             Project p;
             p.VTPCount = std::stoi(given[1]);
             p.LWMCount = std::stoi(given[2]);
             p.KillCount = std::stoi(given[3]);
             return Counts_text(p);
         }},
        {"changed", [](const Given& given) { return File_changed_text(given[1]); }},
        {"gone", [](const Given& given) { return File_gone_text(given[1]); }},
        {"travelled",
         [](const Given& given) {
             return Travelled_text("Undone: ", given[1], given[2] == "without its picture");
         }},
    };
    Expect_cases("app/data/status_texts.txt",
                 [&](const Given& given) { return texts.at(given[0])(given); });
}

}  // namespace tidemark
