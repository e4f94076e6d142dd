// The dialog Import Coast.
#pragma once

#include <functional>
#include <optional>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>

#include "app/import_commands.h"
#include "coast/coast_file.h"

namespace tidemark {

// Reads a coast file and counts what the choices would make of it before anything is imported.
// Reading and laying that take longer show it, and can be stopped; so they are when the dialog is
// closed.
class ImportCoast : public QDialog {
    Q_OBJECT

  public:
    using Reader = std::function<CoastFileReading(const std::filesystem::path&,
                                                  std::span<const GeoBox>, const CoastProgress&)>;

    explicit ImportCoast(Platform& platform, QWidget* owner = nullptr,
                         Reader read = Read_coast_file);

    // Reads the file at once unless its path is empty. What the user wants, or nothing when the
    // dialog was closed in any other way than with OK. The project has a map area.
    std::optional<CoastImport> Ask(const Project& project, const QString& path);

    void accept() override;
    void done(int result) override;

  Q_SIGNALS:
    // What the import would add to the map; nothing when the dialog is closed.
    void Preview_changed(const MapMarks& preview);

  private:
    void Lay_out();
    QLayout* File_row();
    QLayout* Reading_row();
    QFormLayout* Fields();
    void Place_beside_the_map();

    void CoastFileButton_Click();
    void Read(const QString& path);
    QScopeGuard<std::function<void()>> Begin_work();
    // Nothing: how far it is, is not known. False when it is to stop.
    bool Show_progress(std::optional<double> part);
    void Take_lines(std::vector<CoastLine> lines, const std::string& problem);
    void Lay();
    void Count();

    Platform& platform_;
    Reader read_;
    const Project* project_ = nullptr;  // while the dialog is shown

    std::vector<CoastLine> lines_;  // of the file
    std::string problem_;           // why there are none
    CoastImport import_;            // as the choices are

    bool is_busy_ = false, is_cancelled_ = false;
    QElapsedTimer since_start_, since_look_;  // of the work; since events were last let through

    QWidget* choices_;  // what waits while a file is read
    QLineEdit* CoastFileText_;
    QPushButton* CoastFileButton_;
    QComboBox* ImportModeCombo_;
    QLineEdit *ImportWidthText_, *ToleranceText_;
    QCheckBox *ReverseCheck_, *ClearCellsCheck_, *FillWaterCheck_, *FillLandCheck_;
    QProgressBar* ReadingProgress_;
    QPushButton* StopReadingButton_;
    QLabel* ImportCountLabel_;
    QListWidget* ImportRemarkList_;
    QPushButton* OkButton_ = nullptr;
};

}  // namespace tidemark
