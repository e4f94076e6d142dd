// The entries of the three tables of a project as values of their own.
#pragma once

#include <cstddef>
#include <vector>

#include "model/project.h"

namespace tidemark {

// A VTP point as the tables keep it.
struct VTPRecord {
    Int16 X, Y;
    bool SegStart, SegEnd;
    Int16 Mode, Width;
    bool operator==(const VTPRecord&) const = default;
};

// A cleared cell.
struct KillRecord {
    Int16 Column, Row, Type;
    bool operator==(const KillRecord&) const = default;
};

// An LWM polygon; Points holds X and Y of each of its points in turn.
struct LWMRecord {
    Int16 Type, Height, Column, Row;
    std::vector<Int16> Points;
    bool operator==(const LWMRecord&) const = default;
};

// Each table by the same functions: how many entries it has, one entry, and setting one.

struct PointTable {
    using Record = VTPRecord;
    // The slot behind the last point starts no segment, as after every refresh of the list.
    static void Set_count(Project& p, int count) {
        p.VTPCount = count;
        p.VTPSegStart(count + 1) = false;
    }
    static int Count(const Project& p) { return p.VTPCount; }
    static bool Equal(const Project& a, int i, const Project& b, int j) {
        return Get(a, i) == Get(b, j);
    }
    static VTPRecord Get(const Project& p, int i) {
        return {p.VTPPoint(i, 0), p.VTPPoint(i, 1), p.VTPSegStart(i),
                p.VTPSegEnd(i),   p.VTPMode(i),     p.VTPWidth(i)};
    }
    static void Set(Project& p, int i, const VTPRecord& point) {
        p.VTPPoint(i, 0) = point.X;
        p.VTPPoint(i, 1) = point.Y;
        p.VTPSegStart(i) = point.SegStart;
        p.VTPSegEnd(i) = point.SegEnd;
        p.VTPMode(i) = point.Mode;
        p.VTPWidth(i) = point.Width;
    }
};

struct ClearedCellTable {
    using Record = KillRecord;
    static void Set_count(Project& p, int count) { p.KillCount = count; }
    static int Count(const Project& p) { return p.KillCount; }
    static bool Equal(const Project& a, int i, const Project& b, int j) {
        return Get(a, i) == Get(b, j);
    }
    static KillRecord Get(const Project& p, int i) {
        return {p.KillCell(i, 0), p.KillCell(i, 1), p.KillType(i)};
    }
    static void Set(Project& p, int i, const KillRecord& cell) {
        p.KillCell(i, 0) = cell.Column;
        p.KillCell(i, 1) = cell.Row;
        p.KillType(i) = cell.Type;
    }
};

struct PolygonTable {
    using Record = LWMRecord;
    static void Set_count(Project& p, int count) { p.LWMCount = count; }
    static int Count(const Project& p) { return p.LWMCount; }
    static bool Equal(const Project& a, int i, const Project& b, int j) {
        bool equal = a.LWMPointCount(i) == b.LWMPointCount(j) && a.LWMType(i) == b.LWMType(j) &&
                     a.LWMHeight(i) == b.LWMHeight(j) && a.LWMCell(i, 0) == b.LWMCell(j, 0) &&
                     a.LWMCell(i, 1) == b.LWMCell(j, 1);
        for (int k = 1; equal && k <= a.LWMPointCount(i); ++k)
            equal = a.LWMPoint(i, k, 0) == b.LWMPoint(j, k, 0) &&
                    a.LWMPoint(i, k, 1) == b.LWMPoint(j, k, 1);
        return equal;
    }
    static LWMRecord Get(const Project& p, int i) {
        LWMRecord polygon{p.LWMType(i), p.LWMHeight(i), p.LWMCell(i, 0), p.LWMCell(i, 1), {}};
        polygon.Points.reserve(2 * static_cast<std::size_t>(p.LWMPointCount(i)));
        for (int k = 1; k <= p.LWMPointCount(i); ++k)
            for (const int axis : {0, 1}) polygon.Points.push_back(p.LWMPoint(i, k, axis));
        return polygon;
    }
    static void Set(Project& p, int i, const LWMRecord& polygon) {
        p.LWMType(i) = polygon.Type;
        p.LWMHeight(i) = polygon.Height;
        p.LWMCell(i, 0) = polygon.Column;
        p.LWMCell(i, 1) = polygon.Row;
        p.LWMPointCount(i) = polygon.Points.size() / 2;
        for (std::size_t k = 0; k < polygon.Points.size(); ++k)
            p.LWMPoint(i, k / 2 + 1, k % 2) = polygon.Points[k];
    }
};

}  // namespace tidemark
