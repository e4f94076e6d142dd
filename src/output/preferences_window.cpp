#include "output/preferences_window.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "output/output_names.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

QPushButton* Browse_button(const char* name, const char* spoken) {
    auto* const button = Named<QPushButton>(name, "Browse");
    button->setAccessibleName(spoken);
    button->setAutoDefault(false);
    return button;
}

// A line for a long path: it can be selected, wraps, and does not widen the dialog.
QLabel* Path_label(const char* name) {
    auto* const label = Named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

}  // namespace

Preferences::Preferences(Platform& platform, QWidget* owner)
    : QDialog(owner),
      platform_(platform),
      checks_{Named<QCheckBox>("Check1", "After saving, open ASM file in Notepad"),
              Named<QCheckBox>("Check2", "After saving, compile ASM file with BGLC"),
              Named<QCheckBox>("Check3", "After saving, open ASM file in Notepad"),
              Named<QCheckBox>("Check4", "After saving, compile ASM file with BGLC")},
      RootText_(Named<QLineEdit>("RootText")),
      BrowseButton_(Browse_button("BrowseButton", "Browse for the filename root")),
      LWMlabel_(Path_label("LWMlabel")),
      VTPlabel_(Path_label("VTPlabel")),
      FScopy_(Named<QCheckBox>("FScopy", "Copy compiled BGLs to:")),
      FSname_(Named_field("FSname", "Folder to copy compiled BGLs to")),
      FSBrowseButton_(Browse_button("FSBrowseButton", "Browse for the folder")) {
    setObjectName("Preferences");
    setWindowTitle("Tidemark - Output Preferences");
    Lay_out();
    Connect_controls();
    RootText_Change();
    FScopy_Click();
}

void Preferences::Lay_out() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("OKbutton");
    connect(buttons, &QDialogButtonBox::accepted, this, &Preferences::OKButton_Click);

    auto* const options = new QHBoxLayout;
    options->addWidget(Options_frame("Frame1", "LWM output options", checks_[0], checks_[1]));
    options->addWidget(Options_frame("Frame2", "VTP output options", checks_[2], checks_[3]));
    auto* const column = new QVBoxLayout(this);
    column->addLayout(options);
    column->addWidget(Filenames_frame());
    column->addWidget(buttons);
}

QWidget* Preferences::Options_frame(const char* name, const char* caption, QCheckBox* notepad,
                                    QCheckBox* compile) {
    auto* const frame = Named<QGroupBox>(name, caption);
    auto* const column = new QVBoxLayout(frame);
    column->addWidget(notepad);
    column->addWidget(compile);
    return frame;
}

QWidget* Preferences::Filenames_frame() {
    auto* const frame = Named<QGroupBox>("Frame3", "Filenames");
    auto* const label = Named<QLabel>("Label1", "Output filename root is:");
    label->setBuddy(RootText_);

    auto* const grid = new QGridLayout(frame);
    grid->addWidget(label, 0, 0);
    grid->addWidget(RootText_, 0, 1);
    grid->addWidget(BrowseButton_, 0, 2);
    grid->addWidget(LWMlabel_, 1, 0, 1, 3);
    grid->addWidget(VTPlabel_, 2, 0, 1, 3);
    grid->addWidget(FScopy_, 3, 0);
    grid->addWidget(FSname_, 3, 1);
    grid->addWidget(FSBrowseButton_, 3, 2);
    return frame;
}

void Preferences::Connect_controls() {
    connect(RootText_, &QLineEdit::textChanged, this, &Preferences::RootText_Change);
    connect(BrowseButton_, &QPushButton::clicked, this, &Preferences::BrowseButton_Click);
    connect(FScopy_, &QCheckBox::toggled, this, &Preferences::FScopy_Click);
    connect(FSBrowseButton_, &QPushButton::clicked, this, &Preferences::FSBrowseButton_Click);
}

std::optional<OutputPreferences> Preferences::Ask(const OutputPreferences& preferences) {
    checks_[0]->setChecked(preferences.LWMNotepad);
    checks_[1]->setChecked(preferences.LWMCompile);
    checks_[2]->setChecked(preferences.VTPNotepad);
    checks_[3]->setChecked(preferences.VTPCompile);
    RootText_->setText(To_qt(preferences.RootText));
    FScopy_->setChecked(preferences.FScopy);
    FSname_->setText(To_qt(preferences.FSname));
    RootText_->setFocus();
    if (exec() != QDialog::Accepted) return std::nullopt;
    return Entered();
}

OutputPreferences Preferences::Entered() const {
    return {.RootText = From_qt(RootText_->text()),
            .FSname = From_qt(FSname_->text()),
            .FScopy = FScopy_->isChecked(),
            .LWMNotepad = checks_[0]->isChecked(),
            .LWMCompile = checks_[1]->isChecked(),
            .VTPNotepad = checks_[2]->isChecked(),
            .VTPCompile = checks_[3]->isChecked()};
}

void Preferences::RootText_Change() {
    const std::string root = From_qt(RootText_->text());
    LWMlabel_->setText(To_qt(Output_label(LWMOutput, root)));
    VTPlabel_->setText(To_qt(Output_label(VTPOutput, root)));
}

// The dialog grows with the two names, so that they are read whole.
bool Preferences::event(QEvent* event) {
    const bool is_handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible())
        resize(width(), qMax(height(), layout()->totalHeightForWidth(width())));
    return is_handled;
}

void Preferences::BrowseButton_Click() {
    if (const auto root = Browse_root(BrowseDialog_, platform_)) RootText_->setText(To_qt(*root));
}

void Preferences::FScopy_Click() {
    FSname_->setEnabled(FScopy_->isChecked());
    FSBrowseButton_->setEnabled(FScopy_->isChecked());
}

void Preferences::FSBrowseButton_Click() {
    if (const auto folder = Browse_folder(FSBrowseDialog_, platform_))
        FSname_->setText(To_qt(*folder));
}

void Preferences::OKButton_Click() {
    if (Check_preferences(Entered(), platform_.messages)) accept();
}

}  // namespace tidemark
