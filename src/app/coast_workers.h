// Cells that are worked on by several threads while others are still being read.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "coast/coast_cells.h"

namespace tidemark {

struct CellWork {
    WorldCell Cell;
    std::vector<CoastLine> Lines;
};

// What is printed about a cell: whole lines.
struct CellReport {
    std::string Out, Errors;
    bool IsRefused = false;
};

class CoastWorkers {
  public:
    using Work = std::function<CellReport(const CellWork& cell)>;
    // Receives the reports in the order in which the cells were given, on any of the threads but
    // never on two at once.
    using Tell = std::function<void(const CellReport& report)>;

    // `work` is called on so many threads at once, 1 or more; neither function throws.
    CoastWorkers(unsigned threads, Work work, Tell tell);
    CoastWorkers(const CoastWorkers&) = delete;
    CoastWorkers& operator=(const CoastWorkers&) = delete;
    // Waits until all is done.
    ~CoastWorkers();

    // Waits until the last batch has been begun with, so that no more than one waits.
    void Give(std::vector<CellWork> batch);

  private:
    void Run();

    const Work work_;
    const Tell tell_;
    std::mutex turn_;
    std::condition_variable is_given_, is_taken_;
    std::vector<CellWork> batch_;
    std::size_t next_ = 0;    // of the batch
    std::size_t before_ = 0;  // cells of the batches before
    bool is_over_ = false;

    std::mutex telling_;
    std::size_t told_ = 0;
    std::map<std::size_t, CellReport> untold_;  // by the cell's number

    std::vector<std::thread> threads_;
};

}  // namespace tidemark
