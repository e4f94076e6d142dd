#include "model/project.h"

#include <variant>
#include <vector>

#include "model/project_layout.h"

namespace tidemark {

namespace {

// Gathers every value that the project file keeps, in its order.
struct Gatherer {
    std::vector<std::variant<int, float, bool, std::string>> Values;

    void operator()(const char*, const Int16& value) { Values.emplace_back(int{value}); }
    void operator()(const char*, const float& value) { Values.emplace_back(value); }
    void operator()(const char*, const bool& value) { Values.emplace_back(value); }
    void operator()(const char*, const std::string& value) { Values.emplace_back(value); }
    void Count(const char* name, const Int16& value, int) { (*this)(name, value); }
};

auto Saved_values(const Project& project) {
    Gatherer gatherer;
    Visit_project(project, gatherer);
    return gatherer.Values;
}

}  // namespace

bool operator==(const Project& a, const Project& b) {
    return Saved_values(a) == Saved_values(b);
}

}  // namespace tidemark
