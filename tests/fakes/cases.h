// Cases that stand in a text file, one a line: "what is given; more of it => what comes of it".
//
// Blanks around a text that is given do not count unless it stands in quotes. "#" begins a remark.
// Line ends in what comes of it are written as " / ".
#pragma once

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "model/int16.h"

namespace tidemark {

using Given = std::vector<std::string>;

inline Given Given_in(const std::string& text) {
    Given given;
    std::istringstream parts(text + ";");
    for (std::string part; std::getline(parts, part, ';');) {
        part.erase(0, part.find_first_not_of(' '));
        part.erase(part.find_last_not_of(' ') + 1);
        if (part.starts_with('"')) part = part.substr(1, part.size() - 2);
        given.push_back(part);
    }
    return given;
}

// Expects of every case in tests/<file> that `answer` makes what comes of it of what is given.
template <class Answer>
void Expect_cases(const std::string& file, const Answer& answer) {
    std::istringstream lines(Source_file("tests/" + file));
    int cases = 0;
    for (std::string line; std::getline(lines, line);) {
        const auto arrow = line.find(" =>");
        if (line.starts_with('#') || arrow == line.npos) continue;
        ++cases;
        const std::string text = line.substr(0, arrow);
        std::string made;
        try {
            made = answer(Given_in(text));
        } catch (const Overflow&) {
            made = "Overflow";
        }
        for (auto at = made.find('\n'); at != made.npos; at = made.find('\n'))
            made.replace(at, 1, " / ");
        EXPECT_EQ(text + " =>" + (made.empty() ? "" : " ") + made, line);
    }
    EXPECT_GT(cases, 0) << file;
}

}  // namespace tidemark
