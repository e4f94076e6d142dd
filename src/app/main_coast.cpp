// tidemark-coast: makes projects of coast files from the command line.
#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

#include "app/coast_companion.h"
#include "app/console_program.h"

namespace tidemark {
namespace {

constexpr const char* Usage =
    "Usage: tidemark-coast [OPTION]... (--at LAT,LON | --lod8 X,Y | --all) --output-folder DIR\n"
    "                      COAST...\n"
    "Makes Tidemark projects of coast files: GeoJSON, shapefiles, KML, GPX. A project that is "
    "newer\n"
    "than they are and was made with the same options is passed over.\n"
    "\n"
    "  --at LAT,LON         the LOD8 cell of a place in degrees, such as 37.8,-122.4\n"
    "  --lod8 X,Y           an LOD8 cell, 0,0 to 767,511; both can be given several times\n"
    "  --all                every LOD8 cell that the coast runs through\n"
    "  --output-folder DIR  put the projects into DIR\n"
    "\n"
    "  --mode N             drawing mode of the lines: 0 plain, 1 sand with waves (the default),\n"
    "                       2 sand, 3 ice, 4 river coast, 5 stream, 6 dirt road, 7 and 9 roads\n"
    "  --width W            of the lines in VTP units, 0 to 300 (80)\n"
    "  --tolerance U        VTP units, above 0: how far lines may be off to save points (4)\n"
    "  --reverse            turn the lines round\n"
    "  --fill KIND          water, land, both (the default for coastlines) or none: polygons\n"
    "  --land SIDE          left (the default) or right: where lines have the land that are not\n"
    "                       part of a polygon, as they run after --reverse\n"
    "  --clear              clear the old scenery from the cells that the lines run through\n"
    "\n"
    "  --help               show this help\n"
    "  --version            show the version\n";

// A text that is a number from its first to its last letter.
template <class Number>
std::optional<Number> Number_in(std::string_view text, Number least, Number most) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    if (!(value >= least && value <= most)) return std::nullopt;
    return value;
}

// Two numbers with a comma between them.
template <class Number>
std::optional<std::pair<Number, Number>> Pair_in(std::string_view text, Number least_first,
                                                 Number most_first, Number least_second,
                                                 Number most_second) {
    const auto comma = text.find(',');
    if (comma == text.npos) return std::nullopt;
    const auto first = Number_in(text.substr(0, comma), least_first, most_first);
    const auto second = Number_in(text.substr(comma + 1), least_second, most_second);
    if (!first || !second) return std::nullopt;
    return std::pair(*first, *second);
}

struct CommandLine {
    CoastTask Task;
    bool All = false;
    std::optional<std::string> Fill;

    ImportOptions& Importing() { return Task.Options.Importing; }

    // False when the text is none that the option takes.
    bool Take(char letter, std::string_view text) {
        switch (letter) {
            case 'A':
                All = true;
                return true;
            case 'r':
                Task.Options.Laying.Reverse = true;
                return true;
            case 'c':
                Importing().ClearCells = true;
                return true;
            case 'a':
                if (const auto at = Pair_in<double>(text, -90, 90, -180, 180))
                    return Add_cell(Cell_at({at->second, at->first}));
                return false;
            case 'l':
                if (const auto cell = Pair_in<int>(text, 0, LastLOD8Column, 0, LastLOD8Row))
                    return Add_cell({cell->first, cell->second});
                return false;
            case 'm':
                return Take_number(text, 0, TwoLanes, Importing().Mode) &&
                       Find_mode(Importing().Mode, Adds::Point) != nullptr;
            case 'w':
                return Take_number(text, 0, MaxVTPWidth, Importing().Width);
            case 't':
                return Take_number(text, 0.0, 1e6, Task.Options.Laying.Tolerance) &&
                       Task.Options.Laying.Tolerance > 0;
            case 'f':
                Fill = text;
                return text == "water" || text == "land" || text == "both" || text == "none";
            case 's':
                Importing().LandOnLeft = text == "left";
                return text == "left" || text == "right";
            case 'o':
                Task.OutputFolder = text;
                return !text.empty();
            default:
                return false;
        }
    }

    // What is wrong with the options as a whole; empty: nothing.
    std::string Complaint() {
        const bool is_coastline = Is_coastline(Importing().Mode);
        const std::string fill = Fill.value_or(is_coastline ? "both" : "none");
        Importing().FillWater = fill == "water" || fill == "both";
        Importing().FillLand = fill == "land" || fill == "both";
        if (fill != "none" && !is_coastline)
            return "lines of mode " + std::to_string(Importing().Mode) +
                   " bound no polygons: use --fill none";
        if (All != Task.Cells.empty()) return "say which cells: --at, --lod8 or, alone, --all";
        if (Task.OutputFolder.empty()) return "say where to: --output-folder";
        if (Task.Coasts.empty()) return "no coast file is named";
        return {};
    }

  private:
    bool Add_cell(WorldCell cell) {
        Task.Cells.push_back(cell);
        return true;
    }

    template <class Number>
    static bool Take_number(std::string_view text, Number least, Number most, Number& taken) {
        const auto number = Number_in(text, least, most);
        if (number) taken = *number;
        return number.has_value();
    }
};

constexpr std::array<ConsoleOption, 11> Options{{
    {.Name = "at", .Letter = 'a', .TakesText = true},
    {.Name = "lod8", .Letter = 'l', .TakesText = true},
    {.Name = "all", .Letter = 'A'},
    {.Name = "output-folder", .Letter = 'o', .TakesText = true},
    {.Name = "mode", .Letter = 'm', .TakesText = true},
    {.Name = "width", .Letter = 'w', .TakesText = true},
    {.Name = "tolerance", .Letter = 't', .TakesText = true},
    {.Name = "reverse", .Letter = 'r'},
    {.Name = "fill", .Letter = 'f', .TakesText = true},
    {.Name = "land", .Letter = 's', .TakesText = true},
    {.Name = "clear", .Letter = 'c'},
}};

int Run(std::vector<std::string> arguments) {
    ConsoleProgram program("tidemark-coast", Usage);
    CommandLine line;
    const auto take = [&line](char letter, std::string_view text) {
        return line.Take(letter, text);
    };
    if (const auto code = program.Read(std::move(arguments), Options, take)) return *code;
    line.Task.Coasts = program.Files();
    if (const std::string what = line.Complaint(); !what.empty()) return program.Complain(what);
    line.Task.Threads = std::max(1U, std::thread::hardware_concurrency());
    DiskFiles files;
    SystemClock clock;
    return program.Ended(Write_coast_projects(line.Task, files, clock, std::cout, std::cerr));
}

}  // namespace
}  // namespace tidemark

int main(int argc, char** argv) {
    return tidemark::Run(tidemark::Console_arguments(argc, argv));
}
