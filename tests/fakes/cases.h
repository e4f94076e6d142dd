// Cases from a text file, one a line: "input; more input => expected result".
//
// Blanks around an input do not count unless it stands in quotes. "#" begins a comment. Line ends
// in the result are written as " / ". After a line "@key text" the key stands for the text.
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

// Expects for every case in tests/<file> that `answer` turns its inputs into its result.
template <class Answer>
void Expect_cases(const std::string& file, const Answer& answer) {
    std::istringstream lines(Source_file("tests/" + file));
    std::vector<std::pair<std::string, std::string>> keys;  // each with its whole line
    int cases = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('@')) keys.emplace_back(line.substr(0, line.find(' ')), line);
        const auto arrow = line.find(" =>");
        if (line.starts_with('#') || arrow == line.npos) continue;
        for (const auto& [key, meaning] : keys)
            for (auto at = line.find(key); at != line.npos; at = line.find(key))
                line.replace(at, key.size(), meaning, key.size() + 1);
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
