// Drives a fuzz target where libFuzzer is not there: first every file of the corpus folders as it
// is, then inputs made from them at random.
//
//   <subject>_fuzz [--runs=N] [--seed=S] [folder or file...]
//
// Run r uses the random numbers of seed S + r, so a failing run comes back alone with --runs=1 and
// its own seed. An input that ends the program is left in the current folder as "failing-input".
#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
// There under the sanitizers only.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

namespace fs = std::filesystem;

struct Task {
    std::uint64_t Runs = 10000;
    std::uint64_t Seed = 1;
    std::vector<std::string> Corpus;  // the bytes of each file
};

std::string Bytes_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Add_corpus(const fs::path& path, std::vector<std::string>& corpus) {
    std::vector<fs::path> files;
    if (fs::is_directory(path))
        std::copy(fs::directory_iterator(path), {}, std::back_inserter(files));
    else
        files.push_back(path);
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) corpus.push_back(Bytes_of(file));
}

bool Take_number(std::string_view argument, std::string_view name, std::uint64_t& value) {
    if (!argument.starts_with(name)) return false;
    argument.remove_prefix(name.size());
    std::from_chars(argument.data(), argument.data() + argument.size(), value);
    return true;
}

Task Task_from(const std::vector<std::string>& arguments) {
    Task task;
    for (const std::string& argument : arguments)
        if (!Take_number(argument, "--runs=", task.Runs) &&
            !Take_number(argument, "--seed=", task.Seed))
            Add_corpus(argument, task.Corpus);
    if (task.Corpus.empty()) task.Corpus.emplace_back();
    return task;
}

// Changes an input in a few places: bytes, pieces, and whole numbers where it is text.
class Mutation {
  public:
    Mutation(const std::vector<std::string>& corpus, std::uint64_t seed)
        : corpus_(corpus), random_(seed) {}

    std::string Input() {
        std::string input = Some_file();
        for (auto changes = Number(1, 8); changes > 0; --changes) Change(input);
        return input;
    }

  private:
    static constexpr std::array Numbers{
        "0",      "-1",     "1",     "199",  "200",  "201",   "255",   "256", "999", "1000", "1001",
        "-32768", "-32769", "32767", "4080", "12.5", "32768", "1e999", "-0",  "nan", ""};
    static constexpr std::size_t LongestPiece = 64;

    std::size_t Number(std::size_t lowest, std::size_t highest) {
        return std::uniform_int_distribution(lowest, highest)(random_);
    }
    char Byte() { return static_cast<char>(Number(0, 255)); }
    const std::string& Some_file() { return corpus_[Number(0, corpus_.size() - 1)]; }

    std::string Some_piece() {
        const std::string& file = Some_file();
        return file.substr(Number(0, file.size()), Number(1, LongestPiece));
    }

    void Change(std::string& input) {
        const std::size_t at = Number(0, input.size());
        switch (Number(0, 6)) {
            case 0:
                if (at < input.size()) input[at] = Byte();
                break;
            case 1:
                if (at < input.size())
                    input[at] = static_cast<char>(input[at] ^ (1 << Number(0, 7)));
                break;
            case 2:
                input.insert(at, 1, Byte());
                break;
            case 3:
                input.erase(at, Number(1, LongestPiece));
                break;
            case 4:
                input.insert(at, Some_piece());
                break;
            case 5:
                input.resize(at);
                break;
            default:
                Change_number(input, at);
        }
    }

    // The next number in the text becomes another one.
    void Change_number(std::string& input, std::size_t at) {
        constexpr const char* digits = "-.0123456789";
        const std::size_t start = std::min(input.find_first_of(digits, at), input.size());
        const std::size_t end = std::min(input.find_first_not_of(digits, start), input.size());
        input.replace(start, end - start, Numbers[Number(0, Numbers.size() - 1)]);
    }

    const std::vector<std::string>& corpus_;
    std::mt19937_64 random_;
};

std::string current_input;

void Keep_failing_input() {
    std::ofstream("failing-input", std::ios::binary) << current_input;
    std::cerr << "The input is in the file failing-input.\n";
}

void Run(std::string input) {
    current_input = std::move(input);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(current_input.data()),
                           current_input.size());
}

}  // namespace

int main(int argc, char** argv) {
    const Task task = Task_from({argv + 1, argv + argc});
    if (__sanitizer_set_death_callback) __sanitizer_set_death_callback(Keep_failing_input);
    std::signal(SIGABRT, [](int) { Keep_failing_input(); });

    for (const std::string& file : task.Corpus) Run(file);
    for (std::uint64_t run = 0; run < task.Runs; ++run)
        Run(Mutation(task.Corpus, task.Seed + run).Input());
    std::cout << task.Corpus.size() << " files, " << task.Runs << " runs\n";
    return 0;
}
