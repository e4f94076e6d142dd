#include "app/coast_companion.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iterator>
#include <optional>
#include <ostream>
#include <set>
#include <span>
#include <system_error>
#include <utility>

#include "app/coast_upkeep.h"
#include "app/coast_workers.h"
#include "coast/coast_file.h"
#include "model/project_file.h"

namespace tidemark {

namespace fs = std::filesystem;

namespace {

// What is read at once: so many cells, which all positions of the files are held against, and so
// many segments, 16 bytes each, unless a single cell has more.
constexpr std::size_t MostCells = 512;
constexpr std::uint64_t MostSegments = 2'000'000;

fs::path Path_of(const std::string& text) {
    return {std::u8string(text.begin(), text.end())};
}

class CoastCompanion {
  public:
    CoastCompanion(const CoastTask& task, Files& files, Clock& clock, std::ostream& out,
                   std::ostream& errors)
        : task_(task), files_(files), out_(out), errors_(errors), saved_on_(clock.Now_text()) {}

    bool Write_all() {
        std::error_code gone;
        if (!fs::is_directory(Path_of(task_.OutputFolder), gone))
            return Refuse(task_.OutputFolder + ": there is no such folder");
        if (!Is_savable(task_.OutputFolder)) return Refuse(std::string(UnsavableNameText));
        folder_ = files_.Full_path(task_.OutputFolder);
        if (folder_.back() != '/' && folder_.back() != '\\') folder_ += '/';
        upkeep_.emplace(files_, folder_, task_.Options, task_.Coasts);
        auto cells = Cells();
        if (!cells) return false;
        std::erase_if(*cells, [this](const auto& touched) { return Is_up_to_date(touched.Cell); });
        return Work_on(*cells) && all_is_well_;
    }

  private:
    using Touched = CoastCells::Touched;

    bool Refuse(const std::string& why) {
        errors_ << why << '\n';
        return false;
    }

    // The cells that are asked for, each once. Nothing when a file was refused.
    std::optional<std::vector<Touched>> Cells() {
        std::vector<Touched> cells;
        const std::set<WorldCell> named(task_.Cells.begin(), task_.Cells.end());
        cells.reserve(named.size());
        for (const WorldCell cell : named) cells.push_back({cell, 1});
        if (!cells.empty()) return cells;
        CoastCells touched;
        for (const std::string& coast : task_.Coasts) {
            const auto refusal = Watch_coast_file(
                Path_of(coast), [&](const CoastPosition& from, const CoastPosition& to) {
                    touched.Note(from, to);
                });
            if (!refusal) continue;
            Refuse(Refusal_text(Path_of(coast), *refusal));
            return std::nullopt;
        }
        return touched.All();
    }

    // The first project of a cell is written last, so that all are there when it is.
    bool Is_up_to_date(WorldCell cell) {
        const std::string name = Coast_project_name(cell, 0) + ".TDM";
        if (!upkeep_->Holds(name)) return false;
        out_ << name << ": up to date\n";
        return true;
    }

    // The next batch is read while the last one is worked on. False when a file was refused.
    bool Work_on(std::span<const Touched> cells) {
        if (!cells.empty()) Share_out(cells);
        return refusal_.empty() || Refuse(refusal_);
    }

    // Until a file is refused, which is reported when the threads are at their end.
    void Share_out(std::span<const Touched> cells) {
        CoastWorkers workers(
            task_.Threads, [this](const CellWork& cell) { return Make_projects(cell); },
            [this](const CellReport& report) { Tell(report); });
        while (!cells.empty()) {
            const std::size_t count = Size_of_batch(cells);
            auto batch = Read(cells.first(count));
            if (batch.empty() || !Note_options()) return;
            workers.Give(std::move(batch));
            cells = cells.subspan(count);
        }
    }

    static std::size_t Size_of_batch(std::span<const Touched> cells) {
        std::size_t count = 1;
        std::uint64_t segments = cells.front().Segments;
        while (count < std::min(cells.size(), MostCells) &&
               segments + cells[count].Segments <= MostSegments)
            segments += cells[count++].Segments;
        return count;
    }

    // What all files have in these cells; nothing when one was refused.
    std::vector<CellWork> Read(std::span<const Touched> cells) {
        std::vector<GeoBox> boxes;
        std::vector<CellWork> batch;
        for (const Touched& touched : cells) {
            boxes.push_back(Box_of(touched.Cell));
            batch.push_back({touched.Cell, {}});
        }
        for (const std::string& coast : task_.Coasts) {
            CoastFileReading reading = Read_coast_file(Path_of(coast), boxes);
            if (reading.Refusal) {
                refusal_ = Refusal_text(Path_of(coast), *reading.Refusal);
                return {};
            }
            Tell_remarks(Path_of(coast), reading.Remarks);
            for (std::size_t i = 0; i < batch.size(); ++i)
                std::move(reading.Lines[i].begin(), reading.Lines[i].end(),
                          std::back_inserter(batch[i].Lines));
        }
        is_first_batch_ = false;
        return batch;
    }

    // Once of each file, when the first batch is read and no thread prints yet.
    void Tell_remarks(const fs::path& coast, const std::vector<std::string>& remarks) {
        if (!is_first_batch_) return;
        for (const std::string& remark : remarks) errors_ << Remark_text(coast, remark) << '\n';
    }

    bool Note_options() {
        const FileResult noted = upkeep_->Note_options();
        if (!noted) refusal_ = upkeep_->Options_path() + ": " + noted.Reason();
        return static_cast<bool>(noted);
    }

    CellReport Make_projects(const CellWork& cell) const {
        const std::string name = Coast_project_name(cell.Cell, 0);
        CellReport report;
        try {
            const CoastProjects projects =
                Coast_projects(cell.Cell, folder_, cell.Lines, task_.Options, saved_on_);
            for (const std::string& remark : projects.Remarks)
                report.Errors.append(name).append(": Remark: ").append(remark).append("\n");
            if (!projects.Refusal.empty()) {
                report.Errors += name + ": " + projects.Refusal + '\n';
                report.IsRefused = true;
            } else if (projects.Each.empty()) {
                report.Out = name + ": no coast to lay\n";
                // It may hold what was drawn by hand since.
                if (files_.Exists(folder_ + name + ".TDM"))
                    report.Errors += name + ": Remark: the project of an earlier run is left\n";
            } else {
                Write(cell.Cell, projects.Each, report);
            }
        } catch (const std::exception& fault) {
            report.Errors += name + ": " + fault.what() + '\n';
            report.IsRefused = true;
        }
        return report;
    }

    // From the last project to the first, which says that all are there.
    void Write(WorldCell cell, const std::vector<CoastProjectText>& projects,
               CellReport& report) const {
        Remove_those_from(cell, static_cast<int>(projects.size()), report);
        if (report.IsRefused) return;
        for (auto project = projects.rbegin(); project != projects.rend(); ++project) {
            const FileResult written = files_.Replace(folder_ + project->Name, project->Bytes);
            if (written) continue;
            report.Errors += folder_ + project->Name + ": " + written.Reason() + '\n';
            report.IsRefused = true;
            return;
        }
        for (const CoastProjectText& project : projects) {
            report.Out += project.Name + ": " + project.Summary + '\n';
            report.IsRefused |= !project.Errors.empty();
            for (const Finding& error : project.Errors)
                report.Errors += project.Name + ": " + Finding_line(error) + '\n';
        }
    }

    // What an earlier run has left of more projects would give the cell polygons twice.
    void Remove_those_from(WorldCell cell, int number, CellReport& report) const {
        constexpr int most = 26;  // more letters than a cell ever needs
        for (; number < most; ++number) {
            const std::string name = Coast_project_name(cell, number) + ".TDM";
            if (!files_.Exists(folder_ + name)) continue;
            const FileResult removed = files_.Delete(folder_ + name);
            if (removed) {
                report.Out += name + ": removed\n";
                continue;
            }
            report.Errors += folder_ + name + ": " + removed.Reason() + '\n';
            report.IsRefused = true;
            return;
        }
    }

    void Tell(const CellReport& report) {
        out_ << report.Out;
        errors_ << report.Errors;
        all_is_well_ = all_is_well_ && !report.IsRefused;
    }

    const CoastTask& task_;
    Files& files_;
    std::ostream& out_;
    std::ostream& errors_;
    const std::string saved_on_;
    std::string folder_;   // full, with its last separator
    std::string refusal_;  // of a file that went well before
    std::optional<CoastUpkeep> upkeep_;
    bool is_first_batch_ = true;
    bool all_is_well_ = true;
};

}  // namespace

bool Write_coast_projects(const CoastTask& task, Files& files, Clock& clock, std::ostream& out,
                          std::ostream& errors) {
    return CoastCompanion(task, files, clock, out, errors).Write_all();
}

}  // namespace tidemark
