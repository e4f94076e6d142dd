#include "model/project_change.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "model/project_layout.h"

namespace tidemark {

namespace {

template <class Entries>
std::vector<typename Entries::Record> Records(const Project& project, int first, int last) {
    std::vector<typename Entries::Record> records;
    records.reserve(static_cast<std::size_t>(std::max(last - first + 1, 0)));
    for (int i = first; i <= last; ++i) records.push_back(Entries::Get(project, i));
    return records;
}

// What lies between the entries that both have at the start and those that both have at the end.
template <class Entries>
Splice<typename Entries::Record> Difference(const Project& before, const Project& after) {
    int last_before = Entries::Count(before);
    int last_after = Entries::Count(after);
    int first = 1;
    while (first <= std::min(last_before, last_after) &&
           Entries::Equal(before, first, after, first))
        ++first;
    while (std::min(last_before, last_after) >= first &&
           Entries::Equal(before, last_before, after, last_after)) {
        --last_before;
        --last_after;
    }
    return {first, Records<Entries>(before, first, last_before),
            Records<Entries>(after, first, last_after)};
}

template <class Entries, class Record = typename Entries::Record>
void Replace(Project& project, int at, const std::vector<Record>& old,
             const std::vector<Record>& with) {
    const int count = Entries::Count(project);
    int next = at;
    if (old.size() == with.size()) {
        for (const Record& record : with) Entries::Set(project, next++, record);
        return;
    }
    const auto behind = Records<Entries>(project, at + static_cast<int>(old.size()), count);
    for (const Record& record : with) Entries::Set(project, next++, record);
    for (const Record& record : behind) Entries::Set(project, next++, record);
    Entries::Set_count(project, next - 1);
}

// Points at every value of a project but the entries of its tables, their counts and what a change
// leaves out, in the order of the project file.
template <class... Value>
struct ValuePointers {
    using Pointer = std::variant<Value*...>;
    std::vector<Pointer> Values;

    template <class T>
    void operator()(std::string_view name, T& value) {
        if (!name.starts_with("PointInCell") && name != "ProjectFile") Values.push_back(&value);
    }
    void Count(const char*, const Int16&, int) {}
};

auto Values_of(const Project& project) {
    ValuePointers<const Int16, const float, const bool, const std::string> pointers;
    Visit_header(project, pointers);
    Visit_trailer(project, pointers);
    return pointers.Values;
}

auto Values_of(Project& project) {
    ValuePointers<Int16, float, bool, std::string> pointers;
    Visit_header(project, pointers);
    Visit_trailer(project, pointers);
    return pointers.Values;
}

// To the bit: -0 is not 0, and what is no number is itself.
bool Same(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}
template <class T>
bool Same(const T& a, const T& b) {
    return a == b;
}

template <class Act>  // act(place, before, after)
void For_each_changed_value(const Project& before, const Project& after, const Act& act) {
    const auto old_values = Values_of(before);
    const auto new_values = Values_of(after);
    for (std::size_t place = 0; place < old_values.size(); ++place)
        std::visit(
            [&](const auto* old_value) {
                const auto* new_value = std::get<decltype(old_value)>(new_values[place]);
                if (!Same(*old_value, *new_value)) act(place, *old_value, *new_value);
            },
            old_values[place]);
}

void Set(Project& project, const std::vector<ValueChange>& changes,
         ValueChange::Value ValueChange::*which) {
    if (changes.empty()) return;
    const auto values = Values_of(project);
    for (const ValueChange& change : changes)
        std::visit(
            [&](auto* value) {
                *value = std::get<std::remove_pointer_t<decltype(value)>>(change.*which);
            },
            values[change.Place]);
}

template <class Entries>
bool Same_entries(const Project& a, const Project& b) {
    if (Entries::Count(a) != Entries::Count(b)) return false;
    for (int i = 1; i <= Entries::Count(a); ++i)
        if (!Entries::Equal(a, i, b, i)) return false;
    return true;
}

std::size_t Bytes_of(const std::vector<LWMRecord>& records) {
    std::size_t bytes = records.capacity() * sizeof(LWMRecord);
    for (const LWMRecord& record : records) bytes += record.Points.capacity() * sizeof(Int16);
    return bytes;
}
template <class Record>
std::size_t Bytes_of(const std::vector<Record>& records) {
    return records.capacity() * sizeof(Record);
}

std::size_t Bytes_of(const ValueChange::Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    return text ? text->capacity() : 0;
}

}  // namespace

ProjectChange::ProjectChange(const Project& before, const Project& after)
    : points_(Difference<PointTable>(before, after)),
      cells_(Difference<ClearedCellTable>(before, after)),
      polygons_(Difference<PolygonTable>(before, after)) {
    For_each_changed_value(
        before, after, [this](std::size_t place, const auto& old_value, const auto& new_value) {
            using Kind =
                std::in_place_type_t<std::decay_t<decltype(old_value)>>;  // bool is no Int16
            values_.push_back({place, ValueChange::Value(Kind(), old_value),
                               ValueChange::Value(Kind(), new_value)});
        });
}

bool ProjectChange::Is_empty() const {
    return values_.empty() && points_.Is_empty() && cells_.Is_empty() && polygons_.Is_empty();
}

void ProjectChange::Apply(Project& project) const {
    Set(project, values_, &ValueChange::After);
    Replace<PointTable>(project, points_.At, points_.Before, points_.After);
    Replace<ClearedCellTable>(project, cells_.At, cells_.Before, cells_.After);
    Replace<PolygonTable>(project, polygons_.At, polygons_.Before, polygons_.After);
}

void ProjectChange::Revert(Project& project) const {
    Set(project, values_, &ValueChange::Before);
    Replace<PointTable>(project, points_.At, points_.After, points_.Before);
    Replace<ClearedCellTable>(project, cells_.At, cells_.After, cells_.Before);
    Replace<PolygonTable>(project, polygons_.At, polygons_.After, polygons_.Before);
}

std::size_t ProjectChange::Bytes() const {
    std::size_t bytes = values_.capacity() * sizeof(ValueChange);
    for (const ValueChange& value : values_)
        bytes += Bytes_of(value.Before) + Bytes_of(value.After);
    return bytes + Bytes_of(points_.Before) + Bytes_of(points_.After) + Bytes_of(cells_.Before) +
           Bytes_of(cells_.After) + Bytes_of(polygons_.Before) + Bytes_of(polygons_.After);
}

bool operator==(const Project& a, const Project& b) {
    bool same = a.PointInCellX == b.PointInCellX && a.PointInCellY == b.PointInCellY &&
                a.ProjectFile == b.ProjectFile && Same_entries<PointTable>(a, b) &&
                Same_entries<ClearedCellTable>(a, b) && Same_entries<PolygonTable>(a, b);
    if (same) For_each_changed_value(a, b, [&same](auto&&...) { same = false; });
    return same;
}

}  // namespace tidemark
