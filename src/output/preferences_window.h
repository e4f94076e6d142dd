// The Output Preferences dialog.
#pragma once

#include <array>
#include <optional>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "output/output_preferences.h"

namespace tidemark {

class Preferences : public QDialog {
    Q_OBJECT

  public:
    Preferences(Platform& platform, QWidget* owner = nullptr);

    // Shows the dialog with these preferences; what was confirmed with OK, or nothing when it was
    // closed in any other way.
    std::optional<OutputPreferences> Ask(const OutputPreferences& preferences);

  protected:
    bool event(QEvent* event) override;

  private:
    void Lay_out();
    QWidget* Options_frame(const char* name, const char* caption, QCheckBox* notepad,
                           QCheckBox* compile);
    QWidget* Filenames_frame();
    void Connect_controls();

    OutputPreferences Entered() const;
    void RootText_Change();
    void BrowseButton_Click();
    void FScopy_Click();
    void FSBrowseButton_Click();
    void OKButton_Click();

    Platform& platform_;
    FileChooser BrowseDialog_ = BrowseDialog();
    FileChooser FSBrowseDialog_ = FSBrowseDialog();
    std::array<QCheckBox*, 4> checks_;  // Check1..Check4: Notepad and compiler, for LWM and VTP
    QLineEdit* RootText_;
    QPushButton* BrowseButton_;
    QLabel *LWMlabel_, *VTPlabel_;
    QCheckBox* FScopy_;
    QLineEdit* FSname_;
    QPushButton* FSBrowseButton_;
};

}  // namespace tidemark
