#include "app/import_coast_window.h"

#include <utility>

#include <QFileInfo>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/qt_active_window.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {

namespace {

// Milliseconds: what reading may take before it is shown, and between two looks at the events.
constexpr int ShownAfter = 200;
constexpr int LookAgain = 30;

constexpr int WholeProgress = 100;

// Keeps its place in the dialog while it is hidden.
void Hide_in_place(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
    widget.hide();
}

}  // namespace

ImportCoast::ImportCoast(Platform& platform, QWidget* owner, Reader read)
    : QDialog(owner),
      platform_(platform),
      read_(std::move(read)),
      choices_(new QWidget),
      CoastFileText_(Named_field("CoastFileText", "Coast file")),
      CoastFileButton_(Named<QPushButton>("CoastFileButton", "&Browse")),
      ImportModeCombo_(Captionless<QComboBox>("ImportModeCombo")),
      ImportWidthText_(Named_field("ImportWidthText", "Width", To_qt(DefaultVTPWidthText))),
      ToleranceText_(
          Named_field("ToleranceText", "Tolerance in units", QString::number(DefaultTolerance))),
      ReverseCheck_(
          Named<QCheckBox>("ReverseCheck", "&Reverse the lines (the file has land on the right)")),
      ClearCellsCheck_(
          Named<QCheckBox>("ClearCellsCheck", "&Clear the existing scenery of this kind")),
      FillWaterCheck_(Named<QCheckBox>("FillWaterCheck", "Fill with w&ater polygons")),
      FillLandCheck_(Named<QCheckBox>("FillLandCheck", "Fill with &land polygons")),
      ReadingProgress_(Captionless<QProgressBar>("ReadingProgress")),
      StopReadingButton_(Named<QPushButton>("StopReadingButton", "&Stop")),
      ImportCountLabel_(Named<QLabel>("ImportCountLabel")),
      ImportRemarkList_(
          Captionless<QListWidget>("ImportRemarkList", "What is left out, and errors")) {
    setObjectName("ImportCoast");
    setWindowTitle("Tidemark - Import Coast");
    CoastFileText_->setReadOnly(true);
    for (const DrawingMode& mode : DrawingModes)
        if (mode.What == Adds::Point) ImportModeCombo_->addItem(To_qt(mode.Item), mode.Code);
    ImportModeCombo_->setCurrentIndex(ImportModeCombo_->findData(ImportOptions().Mode));
    Lay_out();
    connect(CoastFileButton_, &QPushButton::clicked, this, &ImportCoast::CoastFileButton_Click);
    connect(StopReadingButton_, &QPushButton::clicked, this, [this] { is_cancelled_ = true; });
    connect(ImportModeCombo_, &QComboBox::activated, this, &ImportCoast::Count);
    connect(ToleranceText_, &QLineEdit::textEdited, this, &ImportCoast::Lay);
    connect(ReverseCheck_, &QCheckBox::clicked, this, &ImportCoast::Lay);
    for (QCheckBox* const box : {ClearCellsCheck_, FillWaterCheck_, FillLandCheck_})
        connect(box, &QCheckBox::clicked, this, &ImportCoast::Count);
}

void ImportCoast::Lay_out() {
    auto* const choices = new QVBoxLayout(choices_);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->addLayout(File_row());
    choices->addLayout(Fields());
    for (QCheckBox* const box : {ReverseCheck_, ClearCellsCheck_, FillWaterCheck_, FillLandCheck_})
        choices->addWidget(box, 0, Qt::AlignLeft);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(choices_);
    column->addLayout(Reading_row());
    // As many lines as there can be, so that the window keeps its size while the counts change.
    ImportCountLabel_->setTextFormat(Qt::PlainText);
    ImportCountLabel_->setWordWrap(true);
    ImportCountLabel_->setMinimumHeight(5 * ImportCountLabel_->fontMetrics().lineSpacing());
    ImportCountLabel_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    column->addWidget(ImportCountLabel_);
    auto* const remarks = new QLabel("Left &out, and errors to be mended:");
    remarks->setBuddy(ImportRemarkList_);
    column->addWidget(remarks);
    column->addWidget(ImportRemarkList_);
    QDialogButtonBox* const buttons = Ok_and_cancel(*this);
    OkButton_ = buttons->button(QDialogButtonBox::Ok);
    column->addWidget(buttons);
    setMinimumWidth(60 * fontMetrics().averageCharWidth());
}

QLayout* ImportCoast::File_row() {
    auto* const row = new QHBoxLayout;
    auto* const label = new QLabel("Coast file:");
    row->addWidget(label);
    row->addWidget(CoastFileText_, 1);
    row->addWidget(CoastFileButton_);
    return row;
}

QFormLayout* ImportCoast::Fields() {
    auto* const fields = new QFormLayout;
    fields->addRow("&Draw as:", ImportModeCombo_);
    fields->addRow("&Width:", ImportWidthText_);
    fields->addRow("&Tolerance (units):", ToleranceText_);
    return fields;
}

QLayout* ImportCoast::Reading_row() {
    auto* const row = new QHBoxLayout;
    row->addWidget(ReadingProgress_, 1);
    row->addWidget(StopReadingButton_);
    Hide_in_place(*ReadingProgress_);
    Hide_in_place(*StopReadingButton_);
    return row;
}

// At the right end of the screen, where the panel is, so that the lines can be seen on the map.
void ImportCoast::Place_beside_the_map() {
    constexpr int gap = 12;
    if (!parentWidget()) return;
    const QRect area = parentWidget()->screen()->availableGeometry();
    adjustSize();
    move(qMax(area.left(), area.right() - width() - gap),
         qBound(area.top(), parentWidget()->y(), qMax(area.top(), area.bottom() - height())));
}

std::optional<CoastImport> ImportCoast::Ask(const Project& project, const QString& path) {
    project_ = &project;
    CoastFileText_->clear();
    Take_lines({}, "Choose a file: GeoJSON, a shapefile, KML or GPX.");
    Place_beside_the_map();
    CoastFileButton_->setFocus();
    // Once it is shown.
    if (!path.isEmpty()) QTimer::singleShot(0, this, [this, path] { Read(path); });
    const ActiveWindow active_window;
    const int result = exec();
    return result == QDialog::Accepted ? std::optional(std::move(import_)) : std::nullopt;
}

void ImportCoast::accept() {
    const WidthResult taken = Take_width(From_qt(ImportWidthText_->text()), platform_.messages);
    ImportWidthText_->setText(To_qt(taken.Text));
    if (!taken.Width) return ImportWidthText_->setFocus();
    import_.Options.Width = *taken.Width;
    QDialog::accept();
}

void ImportCoast::done(int result) {
    is_cancelled_ = true;  // what is still being read
    Q_EMIT Preview_changed({});
    QDialog::done(result);
}

void ImportCoast::CoastFileButton_Click() {
    const auto path = Choose_coast_file(platform_, From_qt(CoastFileText_->text()));
    if (path) Read(To_qt(*path));
}

void ImportCoast::Read(const QString& path) {
    if (is_busy_) return;
    const std::filesystem::path file(path.toStdU16String());
    CoastFileText_->setText(path);
    Take_lines({}, "Reading " + From_qt(QFileInfo(path).fileName()) + " ...");
    import_.FileRemarks.clear();
    const GeoBox box = Map_box(*project_);
    CoastFileReading reading;
    {
        const auto over = Begin_work();
        reading = read_(file, {&box, 1}, [this](double part) { return Show_progress(part); });
    }
    if (!isVisible()) return;  // it was closed meanwhile
    for (const std::string& remark : reading.Remarks)
        import_.FileRemarks.push_back(Remark_text(file, remark));
    if (reading.Refusal)
        Take_lines({}, Refusal_text(file, *reading.Refusal));
    else if (reading.Lines.empty())
        Take_lines({}, "The reading was stopped.");
    else
        Take_lines(std::move(reading.Lines.front()), "");
    (OkButton_->isEnabled() ? OkButton_ : CoastFileButton_)->setFocus();
}

// What takes longer can be watched and stopped until the result is gone.
QScopeGuard<std::function<void()>> ImportCoast::Begin_work() {
    is_busy_ = true;
    is_cancelled_ = false;
    since_start_.start();
    since_look_.start();
    return QScopeGuard<std::function<void()>>([this] {
        is_busy_ = false;
        ReadingProgress_->hide();
        StopReadingButton_->hide();
        choices_->setEnabled(true);
    });
}

void ImportCoast::Take_lines(std::vector<CoastLine> lines, const std::string& problem) {
    lines_ = std::move(lines);
    problem_ = problem;
    Lay();
}

bool ImportCoast::Show_progress(std::optional<double> part) {
    if (since_start_.elapsed() < ShownAfter || since_look_.elapsed() < LookAgain)
        return !is_cancelled_;
    if (!StopReadingButton_->isVisible()) {
        choices_->setEnabled(false);
        ReadingProgress_->show();
        StopReadingButton_->show();
        StopReadingButton_->setFocus();
    }
    ReadingProgress_->setMaximum(part ? WholeProgress : 0);
    if (part) ReadingProgress_->setValue(static_cast<int>(*part * WholeProgress));
    QCoreApplication::processEvents();
    since_look_.start();
    return !is_cancelled_;
}

void ImportCoast::Lay() {
    const auto tolerance = Take_tolerance(From_qt(ToleranceText_->text()));
    import_.Coast = {};
    if (tolerance && !lines_.empty()) {
        QWidget* const asked_by = focusWidget();
        const auto over = Begin_work();
        import_.Coast =
            Lay_coast(*project_, lines_,
                      {*tolerance, ReverseCheck_->isChecked(), MaxVTPCount - project_->VTPCount},
                      [this] { return Show_progress(std::nullopt); });
        if (!choices_->isEnabled() && asked_by != nullptr)
            QTimer::singleShot(0, asked_by, [asked_by] { asked_by->setFocus(); });
    }
    if (isVisible() || !import_.Coast.Cancelled) Count();
}

void ImportCoast::Count() {
    import_.Options.Mode = ImportModeCombo_->currentData().toInt();
    import_.Options.ClearCells = ClearCellsCheck_->isChecked();
    const bool is_coastline = Is_coastline(import_.Options.Mode);
    for (QCheckBox* const box : {FillWaterCheck_, FillLandCheck_}) box->setEnabled(is_coastline);
    import_.Options.FillWater = is_coastline && FillWaterCheck_->isChecked();
    import_.Options.FillLand = is_coastline && FillLandCheck_->isChecked();
    ImportPreview preview{problem_, {}, {}, false};
    if (!Take_tolerance(From_qt(ToleranceText_->text())))
        preview.CountText = WrongToleranceText;
    else if (import_.Coast.Cancelled)
        preview.CountText = "The laying was stopped. Another tolerance begins it anew.";
    else if (problem_.empty())
        preview = Preview_import(*project_, import_);
    ImportCountLabel_->setText(To_qt(preview.CountText));
    ImportRemarkList_->clear();
    for (const std::string& remark : preview.Remarks) ImportRemarkList_->addItem(To_qt(remark));
    OkButton_->setEnabled(preview.IsPossible);
    Q_EMIT Preview_changed(preview.Marks);
}

}  // namespace tidemark
