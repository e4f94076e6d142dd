// The console companion for coasts, with files on the disk.
#include "app/coast_companion.h"

#include <chrono>
#include <cmath>
#include <numbers>
#include <regex>
#include <set>
#include <shapefil.h>

#include "app/asm_companion.h"
#include "app/coast_upkeep.h"
#include "app/project_commands.h"
#include "coast/position.h"
#include "fakes/rules_test.h"
#include "standin/assembler_check.h"

namespace tidemark {

namespace fs = std::filesystem;

// An island around a place, counter-clockwise, with bays; longitudes beyond 180 degrees are turned.
static std::string Island(double longitude, double latitude, double radius) {
    std::string text = R"({"type":"Polygon","coordinates":[[)";
    for (int i = 0; i <= 500; ++i) {
        const double angle = 2 * std::numbers::pi * (i % 500) / 500;
        const double distance =
            radius * (1 + 0.2 * std::sin(7 * angle) + 0.03 * std::sin(80 * angle));
        const double x = longitude + distance * std::cos(angle);
        text += (i > 0 ? ",[" : "[") + std::to_string(x > 180 ? x - 360 : x) + "," +
                std::to_string(latitude + distance * std::sin(angle)) + "]";
    }
    return text + "]]}";
}

// The polygon of a GeoJSON text as a file of each kind. A track says nothing of land: it is on the
// left.
static void Write_in_all_formats(const std::string& geojson) {
    std::string kml, gpx;
    std::vector<double> x, y;
    const std::regex position(R"(\[(-?[0-9.]+),(-?[0-9.]+)\])");
    for (std::sregex_iterator found(geojson.begin(), geojson.end(), position), end; found != end;
         ++found) {
        const std::string longitude = (*found)[1], latitude = (*found)[2];
        kml.append(longitude).append(",").append(latitude).append(" ");
        gpx.append("<trkpt lon='" + longitude + "' lat='" + latitude + "'/>");
        x.push_back(std::stod(longitude));
        y.push_back(std::stod(latitude));
    }
    Write_file("a.geojson", geojson);
    Write_file("a.kml", "<kml><Polygon><outerBoundaryIs><LinearRing><coordinates>" + kml +
                            "</coordinates></LinearRing></outerBoundaryIs></Polygon></kml>");
    Write_file("a.gpx", "<gpx><trk><trkseg>" + gpx + "</trkseg></trk></gpx>");
    SHPInfo* const file = SHPCreate("a.shp", SHPT_POLYGON);
    SHPObject* const shape = SHPCreateSimpleObject(SHPT_POLYGON, static_cast<int>(x.size()),
                                                   x.data(), y.data(), nullptr);
    SHPWriteObject(file, -1, shape);
    SHPDestroyObject(shape);
    SHPClose(file);
}

class CoastCompanionTest : public testing::Test {
  protected:
    CoastCompanionTest() {
        fs::create_directory("out");
        task_.OutputFolder = "out";
        task_.Threads = 2;
        task_.Options.Importing = {.ClearCells = true, .FillWater = true, .FillLand = true};
    }

    // So long ago that what is made now is newer.
    void Give_coast(const std::string& name, const std::string& content) {
        Write_file(name, content);
        fs::last_write_time(name, fs::last_write_time(name) - std::chrono::hours(1));
        task_.Coasts = {name};
    }

    // What it prints, the errors last; numbers of things are written as N.
    std::string Run(bool all_is_well) {
        std::ostringstream out, errors;
        StoppedClock clock;
        EXPECT_EQ(Write_coast_projects(task_, *files_, clock, out, errors), all_is_well);
        return std::regex_replace(out.str() + errors.str(), std::regex(" \\d+ "), " N ");
    }

    static std::map<std::string, std::string> Files_in(const std::string& folder) {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::directory_iterator(folder))
            files[entry.path().filename().string()] = File_content(entry.path().string());
        return files;
    }

    // Opened in the editor without a word, and taken by the stand-in for the scenery compiler.
    void Expect_goes_on(const std::string& name, const std::string& assembler_files) {
        FakePlatform fake;
        Platform platform{fake.messages, fake.choosers, disk_,       fake.clock,
                          fake.programs, fake.patience, "/elsewhere"};
        Session session;
        Document document(session);
        const auto no_picture = [](const std::string& path) { return path.empty(); };
        EXPECT_EQ(Open_project("out/" + name, document, session, platform, no_picture), "");
        EXPECT_EQ(fake.messages.Said(), "");
        EXPECT_EQ(Save_path(document.Now(), session), "out/" + name);
        EXPECT_FALSE(session.DataChanged);
        EXPECT_TRUE(session.Panel.LWMsave);
        projects_.push_back(document.Now());

        std::ostringstream written, errors;
        EXPECT_TRUE(Write_assembler_files({"", {"out/" + name}}, disk_, written, errors));
        EXPECT_EQ(errors.str(), "");
        std::istringstream lines(written.str());
        std::string names;
        for (std::string path; std::getline(lines, path);) {
            names += fs::path(path).lexically_relative(fs::absolute("out")).string() + " ";
            const auto wrong = Check_assembler(File_content(path));
            EXPECT_FALSE(wrong) << path << " " << wrong->Line << ": " << wrong->What;
        }
        EXPECT_EQ(names, assembler_files);
    }

    static int Polygons(const Project& project, int type) {
        int count = 0;
        for (int i = 1; i <= project.LWMCount; ++i) count += project.LWMType(i) == type ? 1 : 0;
        return count;
    }

    const WorkingFolder folder_;
    DiskFiles disk_;
    Files* files_ = &disk_;
    CoastTask task_;
    std::vector<Project> projects_;
};

TEST_F(CoastCompanionTest, AnIslandInTwoCellsIsAProjectEachUntilItChanges) {
    Give_coast("isle.json", Island(-122.34375, 37.792, 0.1));
    const std::string made =
        "coast-122-148.TDM: N points, N polygons, N cleared cells, no errors\n"
        "coast-123-148.TDM: N points, N polygons, N cleared cells, no errors\n";
    EXPECT_EQ(Run(true), made);
    Expect_goes_on("coast-122-148.TDM", "coast-122-148-VTP.asm coast-122-148-LWM.asm ");
    Expect_goes_on("coast-123-148.TDM", "coast-123-148-VTP.asm coast-123-148-LWM.asm ");
    std::set<int> heights[2];  // at which the coast crosses the common edge
    for (const int side : {0, 1}) {
        const Project& project = projects_[static_cast<std::size_t>(side)];
        EXPECT_EQ(project.CellLatitude, 38);
        EXPECT_EQ(project.CellLongitude, -122);
        EXPECT_EQ(project.AreaRightVTP, 12272);
        EXPECT_FALSE(project.BackgroundLoaded);
        EXPECT_GT(Polygons(project, WaterPolygon), 5);
        EXPECT_GT(Polygons(project, LandPolygon), 5);
        EXPECT_GT(project.KillCount, 5);
        for (int i = 1; i <= project.VTPCount; ++i)
            if (project.VTPPoint(i, 0) == (side == 0 ? LastVTP : FirstVTP))
                heights[side].insert(project.VTPPoint(i, 1));
    }
    EXPECT_EQ(heights[0].size(), 2U);
    EXPECT_EQ(heights[0], heights[1]);

    const std::string up_to_date = "coast-122-148.TDM: up to date\ncoast-123-148.TDM: up to date\n";
    EXPECT_EQ(Run(true), up_to_date);
    task_.Options.Laying.Tolerance = 30;
    task_.Cells = {{123, 148}};
    EXPECT_EQ(Run(true), made.substr(made.find('\n') + 1)) << "made with other options";
    task_.Cells.clear();
    EXPECT_EQ(Run(true), up_to_date.substr(30) + made.substr(0, 68));
    EXPECT_EQ(Run(true), up_to_date);
    Give_coast("mole.json", Island(-122.34375, 37.9, 0.05));
    EXPECT_EQ(Run(true), made) << "made of another coast";
    task_.Coasts = {"isle.json"};
    EXPECT_EQ(Run(true), made);
    Write_file("out/" + std::string(CoastOptionsName),
               "--mode 1 --width 80 --tolerance 30 --fill both --land left --clear\n");
    fs::last_write_time("out/" + std::string(CoastOptionsName),
                        fs::last_write_time("out/coast-122-148.TDM") - std::chrono::hours(1));
    EXPECT_EQ(Run(true), up_to_date) << "made when coasts were not noted";
    fs::last_write_time("isle.json", fs::last_write_time("out/coast-123-148.TDM"));
    fs::remove("out/coast-122-148.TDM");
    EXPECT_EQ(Run(true), made);
}

TEST_F(CoastCompanionTest, ARunBesideAnotherDoesNotMakeItsProjectsOld) {
    DiskFiles files;
    const std::vector<std::string> coasts;
    CoastUpkeep one(files, "out/", task_.Options, coasts);
    CoastUpkeep beside(files, "out/", task_.Options, coasts);
    EXPECT_TRUE(one.Note_options());
    const fs::path noted = one.Options_path();
    fs::last_write_time(noted, fs::last_write_time(noted) - std::chrono::hours(1));
    Write_file("out/coast-0-0.TDM", "made meanwhile");
    fs::last_write_time("out/coast-0-0.TDM", fs::last_write_time(noted));
    EXPECT_TRUE(beside.Note_options());
    EXPECT_TRUE(beside.Holds("coast-0-0.TDM"));
}

TEST_F(CoastCompanionTest, PolygonsBeyondTheLimitGoIntoFurtherProjectsOfTheCell) {
    Give_coast("gate.geojson", Source_file("sample/golden-gate-coastline.geojson"));
    task_.Cells = {{122, 148}, {0, 0}, {122, 148}};
    for (const char* name : {"out/coast-122-148-c.TDM", "out/coast-0-0.TDM"})
        Write_file(name, "of an earlier run");
    EXPECT_EQ(Run(true),
              "coast-0-0: no coast to lay\n"
              "coast-122-148-c.TDM: removed\n"
              "coast-122-148.TDM: N points, N polygons, N cleared cells, no errors\n"
              "coast-122-148-b.TDM: N points, N polygons, N cleared cells, no errors\n"
              "coast-0-0: Remark: the project of an earlier run is left\n");
    Expect_goes_on("coast-122-148.TDM", "coast-122-148-VTP.asm coast-122-148-LWM.asm ");
    Expect_goes_on("coast-122-148-b.TDM", "coast-122-148-b-LWM.asm ");
    EXPECT_EQ(projects_[0].LWMCount, MaxLWMCount);
    EXPECT_EQ(projects_[1].VTPCount + projects_[1].KillCount, 0);
    EXPECT_EQ(Files_in("out").size(), 7U)
        << "the earlier one, two projects, their assembler files, the options";
    task_.Options.Importing.FillLand = false;
    EXPECT_THAT(Run(true), testing::HasSubstr("coast-122-148-b.TDM: removed\n"));
}

TEST_F(CoastCompanionTest, TheSameCoastIsTheSameProjectWhateverItsFile) {
    Write_in_all_formats(Island(-122.34375, 37.792, 0.1));
    std::map<std::string, std::string> first;
    for (const char* const name : {"a.geojson", "a.kml", "a.gpx", "a.shp"}) {
        task_.Coasts = {name};
        fs::remove_all("out");
        fs::create_directory("out");
        Run(true);
        auto made = Files_in("out");
        made.erase(CoastOptionsName);
        EXPECT_EQ(made.size(), 2U) << name;
        if (first.empty()) first = made;
        EXPECT_TRUE(made == first) << name;
    }
}

// Round the date line, and in whatever order threads are done: the same as asking for each cell.
TEST_F(CoastCompanionTest, AllCellsOfACoastAreFoundWhateverTheNumberOfThreads) {
    Give_coast("isle.json", Island(179.9, -20.1, 1));
    const std::string said = Run(true);
    auto made = Files_in("out");
    made.erase(CoastOptionsName);
    EXPECT_GT(made.size(), 12U);
    task_.OutputFolder = "each";
    task_.Threads = 5;
    fs::create_directory("each");
    for (int row = 308; row < 320; ++row)
        for (int column = 763; column < 773; ++column) task_.Cells.push_back({column % 768, row});
    Run(true);
    auto each = Files_in("each");
    each.erase(CoastOptionsName);
    EXPECT_EQ(each.size(), made.size());
    for (const auto& [name, bytes] : made) {
        ASSERT_TRUE(each.contains(name)) << name;
        EXPECT_EQ(std::regex_replace(each.at(name), std::regex("([/\\\\])each/"), "$1out/"), bytes);
        EXPECT_THAT(said, testing::HasSubstr(name + ": "));
    }
}

TEST_F(CoastCompanionTest, RefusalsSayWhyAndLeaveNothingHalf) {
    Give_coast("isle.json", Island(-122.34375, 37.792, 0.1));
    task_.Coasts.push_back("gone.shp");
    EXPECT_EQ(Run(false), "gone.shp: it is not there\n");
    task_.Cells = {{122, 148}};
    EXPECT_EQ(Run(false), "gone.shp: it is not there\n");
    EXPECT_EQ(Files_in("out").size(), 0U);
    task_.Coasts.pop_back();
    MemoryFiles full;
    full.WriteError = "No space left on device";
    files_ = &full;
    EXPECT_EQ(Run(false), "out/tidemark-coast.options: No space left on device\n");
    task_.OutputFolder = "nowhere";
    EXPECT_EQ(Run(false), "nowhere: there is no such folder\n");
}

}  // namespace tidemark
