#include "model/project_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <system_error>
#include <utility>

#include "model/encoding.h"
#include "model/line_writer.h"
#include "model/project_layout.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// Takes the lines of a file one by one. The state has the names of the reading procedure.
class LineReader {
  public:
    explicit LineReader(std::string_view bytes) : FileBuffer(bytes) {}

    // The next line: up to an LF or the end, every CR dropped; empty text once all is read. The
    // result is good until the next call.
    std::string_view Read_line() {
        if (BufferPos >= FileBuffer.size() && ended_at_ == 0) ended_at_ = line_ + 1;
        ++line_;
        const std::size_t start = BufferPos;
        std::size_t end = start;
        while (end < FileBuffer.size() && FileBuffer[end] != '\n' && FileBuffer[end] != '\r') ++end;
        const std::string_view rest = FileBuffer.substr(end);
        const bool has_CR = rest.starts_with('\r');
        if (has_CR && !rest.starts_with("\r\n")) return Read_line_with_CRs();
        BufferPos = std::min(end + (has_CR ? 2 : 1), FileBuffer.size());
        return FileBuffer.substr(start, end - start);
    }

    // Reads the next line if it is a whole number as a project file is written with, which nearly
    // every line is; otherwise nothing is read.
    std::optional<Int16> Read_whole_number() {
        const char* at = FileBuffer.data() + BufferPos;
        const char* const last = FileBuffer.data() + FileBuffer.size();
        if (at != last && *at == ' ') ++at;
        int value = 0;
        const auto [end, error] = std::from_chars(at, last, value);
        const bool is_whole_line = last - end >= 2 && end[0] == '\r' && end[1] == '\n';
        if (error != std::errc() || !is_whole_line || !Int16::Fits(value)) return std::nullopt;
        ++line_;
        BufferPos = static_cast<std::size_t>(end - FileBuffer.data()) + 2;
        return value;
    }

    int Line() const { return line_; }          // the line read last, from 1
    int Ended_at() const { return ended_at_; }  // the first line asked for that was not there, or 0

  private:
    // A line with CRs elsewhere than at its end alone.
    std::string_view Read_line_with_CRs() {
        const std::size_t end = std::min(FileBuffer.find('\n', BufferPos), FileBuffer.size());
        kept_ = FileBuffer.substr(BufferPos, end - BufferPos);
        std::erase(kept_, '\r');
        BufferPos = std::min(end + 1, FileBuffer.size());
        return kept_;
    }

    std::string_view FileBuffer;
    std::size_t BufferPos = 0;
    std::string kept_;
    int line_ = 0;
    int ended_at_ = 0;
};

std::string Excerpt(std::string_view line) {
    constexpr std::size_t longest = 40;
    if (line.size() <= longest) return std::string(line);
    return std::string(line.substr(0, longest)) + "...";
}

// Sets each value that it visits to that of the next line.
class Reader {
  public:
    explicit Reader(LineReader& lines) : lines_(lines) {}

    void operator()(const char* name, Int16& value) {
        if (const auto whole = lines_.Read_whole_number()) {
            value = *whole;
            return;
        }
        const std::string_view line = lines_.Read_line();
        try {
            value = Int_value(line);
        } catch (const Overflow&) {
            Refuse(std::string(name) + " does not fit -32768..32767: " + Excerpt(line));
        }
    }

    void operator()(const char* name, float& value) {
        const std::string_view line = lines_.Read_line();
        value = static_cast<float>(Numeric_value(line));
        if (!std::isfinite(value))
            Refuse(std::string(name) + " is not a 32-bit number: " + Excerpt(line));
    }

    void operator()(const char*, bool& value) { value = Flag_value(lines_.Read_line()); }

    void operator()(const char* name, std::string& value) {
        const std::string_view line = lines_.Read_line();
        if (line.size() > MaxTextLength)
            Refuse(std::string(name) + " is longer than " + std::to_string(MaxTextLength) +
                   " bytes");
        if (line.find('\0') != line.npos) Refuse(std::string(name) + " holds a NUL");
        value = Text_from_bytes(line);
    }

    void Count(const char* name, Int16& value, int limit) {
        (*this)(name, value);
        if (value < 0 || value > limit)
            Refuse(std::string(name) + " is " + Int_text(value) + ", not in 0.." +
                   std::to_string(limit));
    }

  private:
    [[noreturn]] void Refuse(std::string what) const {
        throw ProjectFileError{lines_.Line(), std::move(what)};
    }

    LineReader& lines_;
};

// Writes each value that it visits as a line.
class Writer {
  public:
    explicit Writer(LineWriter& lines) : lines_(lines) {}

    void operator()(const char*, const std::string& value) { lines_.Write_line(value); }
    void operator()(const char*, const Int16& value) { lines_.Write_number(value); }
    template <class T>
    void operator()(const char*, const T& value) {
        lines_.Write_line(Blank_text(value));
    }
    void Count(const char* name, const Int16& value, int) { (*this)(name, value); }

  private:
    LineWriter& lines_;
};

// Whether a line begins as a number, blanks before it not counted.
bool Begins_as_number(std::string_view line) {
    const auto is_digit = [&](std::size_t at) {
        return at < line.size() && line[at] >= '0' && line[at] <= '9';
    };
    std::size_t at = std::min(line.find_first_not_of(' '), line.size());
    if (at < line.size() && (line[at] == '-' || line[at] == '+')) ++at;
    return is_digit(at) || (at < line.size() && line[at] == '.' && is_digit(at + 1));
}

// Finds the first text that would not come back from a line of its own.
struct TextCheck {
    std::optional<std::string> Unsavable;

    void operator()(const char* name, const std::string& value) {
        if (!Unsavable && !Is_savable(value)) Unsavable = name;
    }
};

}  // namespace

bool Reads_as_project(std::string_view bytes) {
    constexpr int last_header_line = 18;
    LineReader lines(bytes);
    const std::string_view first = lines.Read_line();
    if (bytes.empty()) return true;
    const bool has_date = first.find(" saved on ") != first.npos && first.find('\0') == first.npos;
    int numbers = 0, others = 0;
    while (lines.Line() < last_header_line) {
        const std::string_view line = lines.Read_line();
        if (line.find('\0') != line.npos) return false;
        if (line.find_first_not_of(' ') != line.npos) ++(Begins_as_number(line) ? numbers : others);
    }
    return has_date || numbers > others;
}

ProjectFileReading Read_project(std::string_view bytes, Project& project) {
    LineReader lines(bytes);
    Reader reader(lines);
    const auto read = std::make_unique<Project>(project);
    lines.Read_line();
    try {
        Visit_project(*read, reader);
    } catch (const ProjectFileError& error) {
        return {error, 0};
    }
    project = *read;
    return {std::nullopt, lines.Ended_at()};
}

std::string Project_bytes(const Project& project, std::string_view saved_on) {
    constexpr std::size_t largest = 512 << 10;  // full tables fill 505,346 bytes
    LineWriter lines(largest);
    Writer writer(lines);
    lines.Write_line(project.ProjectFile, " saved on ", saved_on);
    Visit_project(project, writer);
    lines.Write_line("END OF FILE");
    return lines.Take_bytes();
}

bool Is_savable(std::string_view text) {
    using namespace std::string_view_literals;
    return text.find_first_of("\r\n\0"sv) == text.npos && text.size() <= MaxTextLength;
}

std::optional<std::string> Unsavable_text(const Project& project) {
    TextCheck check;
    Visit_texts(project, check);
    return check.Unsavable;
}

}  // namespace tidemark
