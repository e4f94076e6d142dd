#include "app/coast_check_window.h"

#include <utility>

#include <QGridLayout>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "app/coast_commands.h"
#include "coast/finding_choice.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

constexpr int LineLength = 72;  // characters of a line that are seen without widening
constexpr int LinesOfText = 3;  // of the chosen finding
constexpr int LinesOfList = 10;

// Readable on a light and on a dark ground.
QColor Ink_of(const Finding& finding, const QPalette& palette) {
    const bool is_dark = palette.color(QPalette::Base).lightness() < 128;
    if (finding.IsError) return is_dark ? QColor(255, 138, 128) : QColor(176, 0, 0);
    return is_dark ? QColor(240, 200, 110) : QColor(110, 75, 0);
}

// Lines as wide as the list: what does not fit is cut off, and can be read below the list.
class FindingLines : public QStyledItemDelegate {
  public:
    FindingLines(const Findings& findings, QObject* parent)
        : QStyledItemDelegate(parent), findings_(findings) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {1, QStyledItemDelegate::sizeHint(option, index).height()};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto row = static_cast<std::size_t>(index.row());
        if (row >= findings_.size()) return;
        option->palette.setColor(QPalette::Text, Ink_of(findings_[row], option->palette));
    }

  private:
    const Findings& findings_;
};

// A list in which Enter does what a double click does.
class FindingList : public ListBox {
  public:
    using ListBox::ListBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
            return ListBox::keyPressEvent(event);
        if (Selected() >= 0) Q_EMIT Double_clicked();
    }
    QSize sizeHint() const override {
        return {fontMetrics().averageCharWidth() * LineLength,
                fontMetrics().height() * LinesOfList};
    }
};

QLabel* Text_label(const char* name) {
    auto* const label = Named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* Button(const char* name, const char* caption) {
    auto* const button = Named<QPushButton>(name, caption);
    button->setAutoDefault(false);  // Enter belongs to the list
    return button;
}

}  // namespace

CoastCheck::CoastCheck(Document& document, Session& session, CoastWatch& watch, QWidget* owner)
    : QDialog(owner, Qt::Tool),
      document_(document),
      session_(session),
      watch_(watch),
      KindFilter_(Captionless<QComboBox>("KindFilter", "Kind of findings")),
      FindingSummary_(Named<QLabel>("FindingSummary")),
      FindingList_(
          new FindingList("FindingList", "Findings", {[this] { return Lines(); }, chosen_, [] {}})),
      FindingText_(Text_label("FindingText")),
      MendResult_(Text_label("MendResult")),
      MendButton_(Button("MendButton", "&Mend")),
      MendAllButton_(Button("MendAllButton", "Mend &all")) {
    setObjectName("CoastCheck");
    setWindowTitle("Tidemark - Coast Check");
    for (const std::string& line : Filter_lines({})) KindFilter_->addItem(To_qt(line));
    FindingList_->setItemDelegate(new FindingLines(shown_, FindingList_));
    Lay_out();
    connect(KindFilter_, &QComboBox::currentIndexChanged, this, &CoastCheck::Filter_chosen);
    connect(FindingList_, &ListBox::Clicked, this, &CoastCheck::Line_chosen);
    connect(FindingList_, &QListView::clicked, this, &CoastCheck::Show_wanted);
    connect(FindingList_, &ListBox::Double_clicked, this, &CoastCheck::Go_to_chosen);
    connect(MendButton_, &QPushButton::clicked, this, &CoastCheck::MendButton_Click);
    connect(MendAllButton_, &QPushButton::clicked, this, &CoastCheck::MendAllButton_Click);
    connect(&watch_, &CoastWatch::Checked, this, [this] {
        if (isVisible()) Refresh();
    });
}

void CoastCheck::Lay_out() {
    auto* const caption = new QLabel("&Show:");
    caption->setBuddy(KindFilter_);
    FindingText_->setMinimumHeight(LinesOfText * fontMetrics().lineSpacing());
    FindingText_->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto* const grid = new QGridLayout(this);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(KindFilter_, 0, 1);
    grid->addWidget(FindingSummary_, 0, 2, 1, 3, Qt::AlignRight);
    grid->addWidget(FindingList_, 1, 0, 1, 5);
    grid->addWidget(FindingText_, 2, 0, 1, 5);
    grid->addWidget(MendResult_, 3, 0, 1, 3);
    grid->addWidget(MendButton_, 3, 3);
    grid->addWidget(MendAllButton_, 3, 4);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(1, 1);
    FindingList_->setFocus();
}

const Finding* CoastCheck::Chosen() const {
    if (!isVisible() || chosen_ < 0) return nullptr;
    return &shown_[static_cast<std::size_t>(chosen_)];
}

std::vector<std::string> CoastCheck::Lines() const {
    std::vector<std::string> lines;
    lines.reserve(shown_.size());
    for (const Finding& finding : shown_) lines.push_back(Finding_line(finding));
    return lines;
}

// Nothing is for all of them.
std::optional<FindingKind> CoastCheck::Wanted_kind() const {
    const int filter = KindFilter_->currentIndex();
    if (filter <= 0) return std::nullopt;
    return static_cast<FindingKind>(filter - 1);
}

// Shows the findings as they are now; what was chosen stays so.
void CoastCheck::Refresh() {
    const Findings& findings = watch_.Current();
    const Findings before = std::exchange(shown_, Of_kind(findings, Wanted_kind()));
    chosen_ = Chosen_after(before, chosen_, shown_);
    FindingList_->Refresh();
    int line = 0;
    for (const std::string& text : Filter_lines(findings))
        KindFilter_->setItemText(line++, To_qt(text));
    FindingSummary_->setText(To_qt(Findings_summary(findings)));
    MendAllButton_->setEnabled(Has_remedy(findings));
    Show_chosen();
}

// What is not shown any more is not chosen either.
void CoastCheck::Filter_chosen() {
    const Finding* const chosen = Chosen();
    const auto kind = Wanted_kind();
    if (chosen && kind && chosen->Kind != *kind) chosen_ = -1;
    Refresh();
}

void CoastCheck::Line_chosen() {
    MendResult_->clear();
    Show_chosen();
    Q_EMIT Show_wanted();
}

void CoastCheck::Show_chosen() {
    const Finding* const chosen = Chosen();
    FindingText_->setText(chosen ? To_qt(Finding_line(*chosen)) : QString());
    MendButton_->setEnabled(chosen && chosen->Mending != Remedy::None);
    Q_EMIT Chosen_changed();
}

void CoastCheck::Go_to_chosen() {
    if (const Finding* const chosen = Chosen()) Q_EMIT Go_wanted(*chosen);
}

void CoastCheck::MendButton_Click() {
    if (const Finding* const chosen = Chosen())
        Show_result(Mend_finding(document_, session_, Finding(*chosen)));
}

void CoastCheck::MendAllButton_Click() {
    Show_result(Mend_all_findings(document_, session_));
}

void CoastCheck::Show_result(const MendResult& result) {
    watch_.Current();  // the next finding is chosen
    MendResult_->setText(To_qt(result.Refusal));
    Q_EMIT Show_wanted();
}

void CoastCheck::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Refresh();
}

void CoastCheck::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    MendResult_->clear();
    Q_EMIT Chosen_changed();
}

}  // namespace tidemark
