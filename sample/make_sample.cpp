// make-sample COASTLINE.geojson FOLDER: makes the sample project, FOLDER/golden-gate.TDM, and its
// background picture, FOLDER/golden-gate.jpg. The project file is the same to the byte every time.
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "map_painter.h"
#include "model/project_file.h"
#include "platform/files.h"
#include "sample_project.h"

namespace tidemark {

namespace {

constexpr char SavedOn[] = "2026-11-22 12:00:00";

std::vector<GeoLine> Read_coast(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("The coastline cannot be read.");
    const QJsonArray features =
        QJsonDocument::fromJson(file.readAll()).object()[u"features"].toArray();
    if (features.isEmpty()) throw std::runtime_error("The coastline holds no features.");

    std::vector<GeoLine> coast;
    for (const auto& feature : features) {
        GeoLine& line = coast.emplace_back();
        for (const auto& point : feature[u"geometry"][u"coordinates"].toArray())
            line.push_back({point[0].toDouble(), point[1].toDouble()});
    }
    return coast;
}

void Write(const std::string& path, std::string_view bytes) {
    const FileResult written = DiskFiles().Replace(path, bytes);
    if (!written) throw std::runtime_error(path + ": " + written.Reason());
}

std::string JPEG_bytes(const QImage& picture) {
    constexpr int quality = 90;
    QBuffer buffer;
    if (!picture.save(&buffer, "JPG", quality))
        throw std::runtime_error("The picture cannot be made a JPEG.");
    return buffer.data().toStdString();
}

}  // namespace

}  // namespace tidemark

int main(int argc, char** argv) {
    using namespace tidemark;
    if (argc != 3) {
        std::fputs("Usage: make-sample COASTLINE.geojson FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        const std::vector<GeoLine> coast = Read_coast(QString::fromLocal8Bit(argv[1]));
        const std::string folder = argv[2];
        Write(folder + "/golden-gate.TDM", Project_bytes(*Sample_project(coast), SavedOn));
        Write(folder + "/golden-gate.jpg", JPEG_bytes(Painted_map(coast)));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make-sample: %s\n", error.what());
        return 1;
    }
    return 0;
}
