#include "walk/golden_gate.h"

#include <stdexcept>

#include <QDir>
#include <QFile>

#include "walk/driver.h"

namespace tidemark {

namespace {

void Check(bool holds, const QString& what) {
    if (!holds) throw std::runtime_error(("the walk: " + what).toStdString());
}

void Copy_sample(const QString& from, const QString& to) {
    for (const char* const name : {"golden-gate.TDM", "golden-gate.jpg"}) {
        QFile::remove(to + "/" + name);
        Check(QFile::copy(from + "/" + name, to + "/" + name),
              QString("%1 could not be copied to %2").arg(name, to));
    }
}

void Take_picture(const QString& name) {
    constexpr int settling = 150;  // milliseconds for the windows to be painted
    QTest::qWait(settling);
    Check(Screen_picture().save(name + ".png"), name + ".png could not be saved");
}

void Open_sample(TidemarkMain& window) {
    Plan plan;
    plan.Then_choose(QDir::current().absoluteFilePath("golden-gate.TDM"));
    Choose_entry(window, "FileMenu", "FileOpen");
    plan.Finish();
    Check(window.windowTitle() == "Tidemark - GOLDEN-GATE.TDM", "the sample was not opened");
    Take_picture("1-sample-opened");
}

void Save_VTP_file(TidemarkMain& window) {
    Plan plan;
    plan.Then([](QWidget& box) {
        Take_picture("2-vtp-file-saved");
        Press(box, Qt::Key_Enter);
    });
    Choose_entry(window, "Output", "VTPsave");
    plan.Finish();
    Check(QFile::exists("golden-gate-VTP.asm"), "there is no VTP file");
}

}  // namespace

void Play_golden_gate(TidemarkMain& window, const QString& sample_folder, const QString& out) {
    Copy_sample(sample_folder, out);
    QDir::setCurrent(out);
    Open_sample(window);
    Save_VTP_file(window);
}

}  // namespace tidemark
