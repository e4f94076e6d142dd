#include "app/tidemark_main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>

#include "app/dropped_file_window.h"
#include "app/project_commands.h"
#include "app/status_texts.h"
#include "canvas/background.h"
#include "model/path_text.h"
#include "platform/qt_text.h"

namespace tidemark {

TidemarkMain::TidemarkMain()
    : messages_(*this),
      choosers_(*this),
      patience_(*statusBar()),
      programs_(patience_),
      platform_{messages_,
                choosers_,
                files_,
                clock_,
                programs_,
                patience_,
                Path_from_qt(QDir::currentPath())},
      map_(new MapView(this)),
      status_(new Status(document_, session_, messages_, this)),
      tool_bar_(new ToolBar(this)),
      status_line_(new StatusLine(*statusBar())),
      coast_watch_(document_),
      display_(*map_, *tool_bar_, document_, session_, messages_),
      guide_(*map_, tool_bar_->DrawByKeys(), document_, session_, *this),
      editing_(document_, session_, messages_, map_->Canvas(), *status_, coast_watch_, *this),
      background_(document_, session_, platform_, *map_, *this),
      coast_(document_, session_, platform_, *map_, coast_watch_, *this),
      safekeeping_(
          document_, session_, platform_,
          [this](const std::string& path) { return map_->Show_image(path); }, *this) {
    setObjectName("TidemarkMain");
    setWindowTitle("Tidemark");
    setAcceptDrops(true);
    Build_menus();
    addToolBar(tool_bar_);
    setContextMenuPolicy(Qt::NoContextMenu);  // of the tool bar, which is always there
    setCentralWidget(map_);
    Wire_tool_bar();
    Wire_map();
    Wire_status_panel();
    Wire_coast();
    connect(&safekeeping_, &Safekeeping::Said, status_line_, &StatusLine::Say);
    Form_Load();
}

TidemarkMain::~TidemarkMain() = default;

void TidemarkMain::Wire_tool_bar() {
    const auto wire = [this](QAction& command, const auto& action) {
        connect(&command, &QAction::triggered, this, action);
    };
    wire(tool_bar_->EditUndo(),
         [this] { Travel(&Document::Undo, "Undone: ", document_.What_undo()); });
    wire(tool_bar_->EditRedo(),
         [this] { Travel(&Document::Redo, "Redone: ", document_.What_redo()); });
    wire(tool_bar_->GoTo(), [this] { guide_.Go_to(); });
    wire(tool_bar_->ShowChosen(), [this] { guide_.Show_chosen(); });
    wire(tool_bar_->CoastCheck(), [this] { coast_.Check(); });
    wire(tool_bar_->FillCoast(), [this] { coast_.Fill(); });
    wire(tool_bar_->ClearCoast(), [this] { coast_.Clear(); });
    wire(tool_bar_->ImportCoast(), [this] { coast_.Import(""); });
    tool_bar_->Zoom(*map_);
    connect(tool_bar_, &ToolBar::Marks_changed, this, [this] { display_.Show_marks(); });
}

void TidemarkMain::Wire_map() {
    connect(map_, &MapView::Resized, &background_, &BackgroundDialogs::Reload_later);
    connect(&background_, &BackgroundDialogs::Changed_in_step, this, [this] { display_.Redraw(); });
    connect(&editing_, &MapEditing::Pointer_moved, this, [this] {
        status_line_->Show_place(document_.Now(), session_);
        display_.Show_pointer();
    });
    connect(&editing_, &MapEditing::Point_selected, this, [this] { display_.Redraw(); });
    connect(&editing_, &MapEditing::Remarked, status_line_, &StatusLine::Remark);
}

void TidemarkMain::Wire_status_panel() {
    connect(status_, &Status::Resized, &background_, &BackgroundDialogs::Reload_later);
    connect(status_, &Status::Edit_wanted, &editing_, &MapEditing::Edit_selected_point);
    for (const auto signal : {&Status::RefreshButton_Click, &Status::Graphics_outdated})
        connect(status_, signal, this, [this] { display_.Redraw(); });
    connect(status_, &Status::Show_wanted, this, [this] { guide_.Show_chosen(); });
    // The panel belongs to this window, whose shortcuts it has too.
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] {
        if (status_->isActiveWindow())
            activateWindow();
        else
            ShowStatus_Click();
    });
}

void TidemarkMain::Wire_coast() {
    connect(&coast_watch_, &CoastWatch::Checked, this,
            [this] { tool_bar_->Show_findings(coast_watch_.Current()); });
    connect(&coast_, &CoastDialogs::Said, status_line_, &StatusLine::Say);
    connect(&coast_, &CoastDialogs::Preview_changed, this,
            [this](const MapMarks& preview) { display_.Show_preview(preview); });
    connect(&coast_, &CoastDialogs::Place_wanted, this,
            [this](VTPPlace place) { guide_.Show(place); });
    connect(&coast_, &CoastDialogs::Selected_in_list, this, [this](ListKind list) {
        status_->Refresh();
        ShowStatus_Click();
        status_->List(list).setFocus();
    });
}

// The two windows side by side, on the screen whatever its size.
void TidemarkMain::Place_windows() {
    constexpr int gap = 12;
    constexpr int title_height = 48;  // about what a window frame adds
    constexpr QSize most(1280, 960);
    const QRect area = screen()->availableGeometry().adjusted(gap, gap, -gap, -gap - title_height);
    const int panel_width = qMax(300, status_->sizeHint().width());
    resize((area.size() - QSize(panel_width + 2 * gap, 0)).boundedTo(most));
    move(area.topLeft());
    status_->resize(panel_width, height());
    status_->move(area.left() + width() + 2 * gap, area.top());
}

// The project starts empty as it was made; what is left of the start-up is to be seen.
void TidemarkMain::Form_Load() {
    status_->VTP().Start_new_segment();
    status_->Drawing_mode().Select_mode(0);
    Place_windows();
    status_->show();
    document_.Announce_to([this] { Show_project(); });
}

void TidemarkMain::Open(const QString& path) {
    const auto show_image = [this](const std::string& image) { return map_->Show_image(image); };
    status_line_->Say(Open_project(Path_from_qt(path), document_, session_, platform_, show_image));
}

void TidemarkMain::Travel(void (Document::*where)(), const char* said, const std::string& step) {
    (document_.*where)();
    status_line_->Say(Travelled_text(said, step, picture_is_gone_));
}

// The one place that shows what a step has made of the project.
void TidemarkMain::Show_project() {
    status_->Refresh();
    Show_title();
    entries_.FileSave->setEnabled(session_.Opened.FileSave);
    entries_.LWMsave->setEnabled(session_.Panel.LWMsave);
    entries_.VTPsave->setEnabled(session_.Panel.VTPsave);
    picture_is_gone_ = !display_.Show_picture();
    entries_.BackgroundProperties->setEnabled(!session_.Opened.Picture.empty());
    tool_bar_->Show_history(document_);
    status_line_->Show_counts(document_.Now());
    coast_watch_.Notice();
    safekeeping_.Notice();
    display_.Redraw();
}

void TidemarkMain::Show_title() {
    const std::string& path = session_.Opened.Path;
    if (path.empty()) return setWindowTitle("Tidemark");
    // A window's title has "[*]" for its own use; twice, it stands for itself.
    const QString name = To_qt(Last_part(path)).toUpper().replace("[*]", "[*][*]");
    setWindowTitle("Tidemark - " + name);
}

void TidemarkMain::closeEvent(QCloseEvent* event) {
    event->setAccepted(safekeeping_.Is_session_ending() || May_exit(session_, messages_));
    if (!event->isAccepted()) return;
    status_->hide();
    safekeeping_.End();
}

// A menu that the pointer passes has nothing to say, and must not wipe what stands there.
bool TidemarkMain::event(QEvent* event) {
    const bool is_empty_tip =
        event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty();
    return is_empty_tip || QMainWindow::event(event);
}

void TidemarkMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!Dragged_file(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void TidemarkMain::dropEvent(QDropEvent* event) {
    const QString path = Dragged_file(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    // Later, so that the program it was dragged from does not wait for the boxes that may come up.
    // A slip of the hand on the way to another window is not a wish to lose anything.
    QTimer::singleShot(0, this, [this, path] {
        if (QApplication::activeModalWidget()) return;  // it has come up meanwhile
        if (!Is_project_file(path)) return coast_.Import(path);
        if (May_clear_project(session_, messages_)) Open(path);
    });
}

}  // namespace tidemark
