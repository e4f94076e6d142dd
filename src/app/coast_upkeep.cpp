#include "app/coast_upkeep.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <optional>
#include <system_error>

#include "model/path_text.h"

namespace tidemark {

namespace fs = std::filesystem;

namespace {

std::optional<fs::file_time_type> Time_of(const std::string& path) {
    std::error_code gone;
    const auto time = fs::last_write_time(fs::path(std::u8string(path.begin(), path.end())), gone);
    return gone ? std::nullopt : std::optional(time);
}

// In as many digits as tell it from every other number.
std::string Number_text(double value) {
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

// As they could be given on the command line.
std::string Text_of(const CoastProjectOptions& options) {
    const auto& [laying, importing] = options;
    const char* const fill = importing.FillWater && importing.FillLand ? "both"
                             : importing.FillWater                     ? "water"
                             : importing.FillLand                      ? "land"
                                                                       : "none";
    return "--mode " + std::to_string(importing.Mode) + " --width " +
           std::to_string(importing.Width) + " --tolerance " + Number_text(laying.Tolerance) +
           (laying.Reverse ? " --reverse" : "") + " --fill " + fill + " --land " +
           (importing.LandOnLeft.value_or(true) ? "left" : "right") +
           (importing.ClearCells ? " --clear" : "") + "\n";
}

// A coast is known by its name and size wherever it lies, as machines that share the work may each
// have it elsewhere.
std::string Text_of(const std::vector<std::string>& coasts, Files& files) {
    std::string text;
    for (const std::string& coast : coasts)
        text += Last_part(coast) + " " + std::to_string(files.Size(coast).value_or(0)) + "\n";
    return text;
}

}  // namespace

CoastUpkeep::CoastUpkeep(Files& files, std::string folder, const CoastProjectOptions& options,
                         const std::vector<std::string>& coasts)
    : files_(files),
      folder_(std::move(folder)),
      text_(Text_of(options) + Text_of(coasts, files)),
      text_before_coasts_(Text_of(options)),
      coasts_(coasts),
      is_noted_(Is_written()) {}

// A folder from before the coasts were noted goes on holding.
bool CoastUpkeep::Is_written() const {
    std::string noted;
    return files_.Read(Options_path(), text_.size(), noted) &&
           (noted == text_ || noted == text_before_coasts_);
}

// A file system may give what is made at once the same time: the options are noted first.
bool CoastUpkeep::Holds(const std::string& name) const {
    const auto made = Time_of(folder_ + name), noted = Time_of(Options_path());
    if (!is_noted_ || !made || !noted || *noted > *made) return false;
    return std::all_of(coasts_.begin(), coasts_.end(), [&](const std::string& coast) {
        const auto changed = Time_of(coast);
        return changed && *changed < *made;
    });
}

// A run beside this one may have noted them meanwhile, and its projects are not to be older than
// that.
FileResult CoastUpkeep::Note_options() {
    is_noted_ = is_noted_ || Is_written();
    if (is_noted_) return FileResult::Done();
    FileResult written = files_.Replace(Options_path(), text_);
    is_noted_ = static_cast<bool>(written);
    return written;
}

}  // namespace tidemark
