#include "app/recovery_file.h"

#include <array>
#include <charconv>
#include <optional>
#include <utility>

#include "model/line_writer.h"

namespace tidemark {

namespace {

constexpr std::string_view Title = "Tidemark recovery ";
constexpr std::string_view Version = "1";

std::string Checksum(std::string_view bytes) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    std::array<char, 16> digits;
    const std::string text(digits.begin(),
                           std::to_chars(digits.begin(), digits.end(), sum, 16).ptr);
    return std::string(digits.size() - text.size(), '0') + text;
}

// Cuts the first line off, without its end; nothing when there is none that ends.
std::optional<std::string_view> Take_line(std::string_view& bytes) {
    const auto end = bytes.find("\r\n");
    if (end == bytes.npos) return std::nullopt;
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end + 2);
    return line;
}

// What follows the checksum.
std::optional<UnsavedWork> Read_work(std::string_view bytes) {
    const auto path = Take_line(bytes);
    const auto time = Take_line(bytes);
    if (!path || !time || !Is_savable(*path) || !Is_savable(*time)) return std::nullopt;
    auto project = std::make_unique<Project>();
    if (Read_project(bytes, *project).Error) return std::nullopt;
    return UnsavedWork{std::string(*path), std::string(*time), std::move(project)};
}

}  // namespace

std::string Recovery_file_bytes(const std::string& project_path, std::string_view time,
                                const Project& work) {
    LineWriter work_lines;
    work_lines.Write_line(Is_savable(project_path) ? project_path : "");
    work_lines.Write_line(time);
    return With_checksum(work_lines.Take_bytes() + Project_bytes(work, time));
}

std::string With_checksum(const std::string& content) {
    LineWriter lines;
    lines.Write_line(Title, Version);
    lines.Write_line(Checksum(content));
    return lines.Take_bytes() + content;
}

RecoveryFileReading Read_recovery_file(std::string_view bytes) {
    const auto title = Take_line(bytes);
    if (!title || !title->starts_with(Title)) return {};
    const std::string_view version = title->substr(Title.size());
    if (version != Version) {
        const bool is_number =
            !version.empty() && version.find_first_not_of("0123456789") == version.npos;
        return {is_number ? RecoveryFileState::Newer : RecoveryFileState::Damaged, {}};
    }
    const auto checksum = Take_line(bytes);
    if (!checksum || *checksum != Checksum(bytes)) return {};
    auto work = Read_work(bytes);
    if (!work) return {};
    return {RecoveryFileState::Whole, std::move(*work)};
}

}  // namespace tidemark
