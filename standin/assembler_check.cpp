#include "standin/assembler_check.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <set>
#include <vector>

namespace tidemark {

namespace {

// Each letter of the arguments is one: n a 16-bit number, l a label, s a text between quotes.
struct Macro {
    std::string_view Name;
    std::string_view Arguments;
};

constexpr std::array macros{
    Macro{"BGLHeader", "nnnnll"},
    Macro{"VTPFileHeader", "nlll"},
    Macro{"VTPDataArea", "nnnn"},
    Macro{"VTPLayer", "nn"},
    Macro{"VTPNumTexturesInLayer", "nn"},
    Macro{"VTPTextureId", "nn"},
    Macro{"VTPPolyCount", "nn"},
    Macro{"VTPPolyMethod2", "nnn"},
    Macro{"VTPPolyMethod2Ex", "n"},
    Macro{"VTPWidePoint", "nnnn"},
    Macro{"VTPWidePointWidth", "n"},
    Macro{"VTPCellID", "nnn"},
    Macro{"VTPIndexHeader", "nll"},
    Macro{"VTPIndexEntry", "llll"},
    Macro{"VTPTextureListHeader", "nlll"},
    Macro{"VTPTextureListEntry", "lll"},
    Macro{"VTPTextureName", "s"},
    Macro{"VTPTextureType", "nnnn"},
    Macro{"LWMFileHeader", "nlll"},
    Macro{"LWMDataAreaDrawPolygons", "nnnnn"},
    Macro{"LWMPoly2", "nnnnn"},
    Macro{"LWMPoly2Ex", "nnnnnn"},
    Macro{"LWMPoint", "nn"},
    Macro{"LWMCellID", "nnnnn"},
    Macro{"LWMIndexHeader", "nl"},
    Macro{"LWMIndexEntry", "llll"},
};

// Macros whose argument (from 0) announces how many of another macro follow before it is called
// again.
struct Announcement {
    std::string_view Macro;
    std::size_t Argument;
    std::string_view Counted;
};

constexpr std::array announcements{
    Announcement{"VTPNumTexturesInLayer", 0, "VTPTextureId"},
    Announcement{"VTPPolyCount", 0, "VTPPolyMethod2"},
    Announcement{"VTPPolyMethod2", 0, "VTPWidePoint"},
    Announcement{"VTPPolyMethod2Ex", 0, "VTPWidePoint"},
    Announcement{"VTPTextureListHeader", 0, "VTPTextureListEntry"},
    Announcement{"LWMPoly2", 0, "LWMPoint"},
    Announcement{"LWMPoly2Ex", 0, "LWMPoint"},
    Announcement{"LWMPoly2Ex", 5, "LWMPoint"},
};

constexpr std::array include_files{std::string_view("TDFMacros.inc"),
                                   std::string_view("TDFHeaders.inc")};
constexpr std::string_view included_label = "TerrainHeaderStart";

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Takes the first word off `rest`.
std::string_view Take_word(std::string_view& rest) {
    rest = Trimmed(rest);
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest = Trimmed(rest.substr(word.size()));
    return word;
}

std::vector<std::string_view> Split_arguments(std::string_view text) {
    std::vector<std::string_view> arguments;
    while (!text.empty()) {
        const auto comma = std::min(text.find(','), text.size());
        arguments.push_back(Trimmed(text.substr(0, comma)));
        if (comma == text.size()) break;
        text.remove_prefix(comma + 1);
        if (text.empty()) arguments.emplace_back();
    }
    return arguments;
}

std::optional<int> Number(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool is_whole = error == std::errc() && end == text.data() + text.size();
    if (!is_whole || value < -32768 || value > 32767) return std::nullopt;
    return value;
}

bool Is_name(std::string_view text) {
    const auto in_name = [](char c) {
        return c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
               (c >= 'A' && c <= 'Z');
    };
    return !text.empty() && !(text[0] >= '0' && text[0] <= '9') &&
           std::ranges::all_of(text, in_name);
}

bool Is_of_kind(char kind, std::string_view argument) {
    if (kind == 'n') return Number(argument).has_value();
    if (kind == 'l') return Is_name(argument);
    return argument.size() > 2 && argument.front() == '"' && argument.back() == '"';
}

// Reads a file line by line; the first error is thrown.
class Checker {
  public:
    void Check(std::string_view bytes) {
        while (!bytes.empty()) {
            ++line_;
            const auto end = bytes.find("\r\n");
            if (end == bytes.npos) Fail("the line does not end with CR LF");
            Check_line(bytes.substr(0, end));
            bytes.remove_prefix(end + 2);
        }
        Check_end();
    }

  private:
    [[noreturn]] void Fail(const std::string& what) const { throw AssemblerError{line_, what}; }

    void Check_line(std::string_view text) {
        if (text.find_first_of("\r\n\t") != text.npos) Fail("a line end or a tab inside the line");
        if (text.empty()) Fail("the line is empty");
        if (text == " " || text.starts_with(';')) return;
        std::string_view rest = text;
        const std::string_view word = Take_word(rest);
        if (word == "include") return Check_include(rest);
        std::string_view after = rest;
        const std::string_view second = Take_word(after);
        if (second == "label" && after == "word") return Define(word);
        if (second != "EQU") return Check_macro(word, rest);
        Define(word);
        const std::string_view macro = Take_word(after);
        Check_macro(macro, after);
    }

    void Check_include(std::string_view name) {
        if (std::ranges::find(include_files, name) == include_files.end())
            Fail("unknown include file " + std::string(name));
        included_.insert(name);
    }

    void Define(std::string_view label) {
        if (!Is_name(label)) Fail("not a label: " + std::string(label));
        if (label == included_label || !defined_.insert(label).second)
            Fail("label defined twice: " + std::string(label));
    }

    void Check_macro(std::string_view name, std::string_view text) {
        if (included_.size() < include_files.size()) Fail("a macro before the include files");
        const auto macro = std::ranges::find(macros, name, &Macro::Name);
        if (macro == macros.end()) Fail("unknown macro " + std::string(name));
        const auto arguments = Split_arguments(text);
        if (arguments.size() != macro->Arguments.size())
            Fail(std::string(name) + " takes " + std::to_string(macro->Arguments.size()) +
                 " arguments, not " + std::to_string(arguments.size()));
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            if (!Is_of_kind(macro->Arguments[i], arguments[i]))
                Fail(std::string(name) + ": bad argument " + std::string(arguments[i]));
            if (macro->Arguments[i] == 'l') references_.try_emplace(arguments[i], line_);
        }
        Count(name, arguments);
    }

    void Count(std::string_view name, const std::vector<std::string_view>& arguments) {
        if (const auto count = missing_.find(name); count != missing_.end() && --count->second < 0)
            Fail("one " + std::string(name) + " more than announced");
        for (const Announcement& announced : announcements)
            if (announced.Macro == name)
                Announce(announced, *Number(arguments[announced.Argument]));
    }

    // A longer count comes in two parts, of which the second adds to the first.
    void Announce(const Announcement& announced, int count) {
        const bool adds = announced.Macro == "VTPPolyMethod2Ex" || announced.Argument > 0;
        int& missing = missing_[announced.Counted];
        if (missing > 0 && !adds) Fail_missing(announced.Counted, missing);
        missing += count;
    }

    [[noreturn]] void Fail_missing(std::string_view counted, int missing) const {
        Fail(std::to_string(missing) + " " + std::string(counted) + " less than announced");
    }

    void Check_end() {
        for (const auto& [counted, missing] : missing_)
            if (missing > 0) Fail_missing(counted, missing);
        for (const auto& [label, line] : references_)
            if (label != included_label && !defined_.contains(label))
                throw AssemblerError{line, "undefined label " + std::string(label)};
    }

    int line_ = 0;
    std::set<std::string_view> included_;
    std::set<std::string_view> defined_;
    std::map<std::string_view, int> references_;  // label, and the line that first refers to it
    std::map<std::string_view, int> missing_;     // macro, and how many of it are still to come
};

}  // namespace

std::optional<AssemblerError> Check_assembler(std::string_view bytes) {
    try {
        Checker().Check(bytes);
    } catch (const AssemblerError& error) {
        return error;
    }
    return std::nullopt;
}

}  // namespace tidemark
