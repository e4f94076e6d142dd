#include "coast/kml_gpx_reader.h"
#include "coast/xml_reader.h"

namespace tidemark {

namespace {

class GpxReader : public XmlReader {
  public:
    explicit GpxReader(CoastRuns& runs) : XmlReader("gpx"), runs_(runs) {}

  private:
    void Begin(std::string_view name) override {
        if (name == "trkseg" || name == "rte") Begin_line();
        if (in_line_ && (name == "trkpt" || name == "rtept")) Add_point();
    }

    void End(std::string_view name) override {
        if (!in_line_ || (name != "trkseg" && name != "rte")) return;
        in_line_ = false;
        runs_.End_line();
        runs_.Keep(CoastSides::None);
    }

    void Take_text(std::string_view) override {}

    void Begin_line() {
        if (in_line_) Refuse("a track or route begins within another");
        in_line_ = true;
        runs_.Begin_line(CoastRole::Line, Here());
    }

    void Add_point() {
        const double longitude = Degrees_of("lon"), latitude = Degrees_of("lat");
        if (!runs_.Add(longitude, latitude)) Refuse(Beyond_degrees_text(longitude, latitude));
    }

    double Degrees_of(std::string_view name) const {
        const auto text = Attribute(name);
        const auto degrees = Degrees_in(text.value_or(""));
        if (!degrees) Refuse("a point has no number as its \"" + std::string(name) + "\"");
        return *degrees;
    }

    CoastRuns& runs_;
    bool in_line_ = false;
};

}  // namespace

void Read_gpx(CoastInput& input, CoastRuns& runs) {
    GpxReader(runs).Read(input);
}

}  // namespace tidemark
