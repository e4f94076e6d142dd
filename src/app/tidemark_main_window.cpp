#include "app/tidemark_main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>

#include "app/fill_commands.h"
#include "app/project_commands.h"
#include "canvas/background.h"
#include "model/path_text.h"
#include "output/assembler_files.h"
#include "output/preferences_window.h"
#include "platform/qt_text.h"

namespace tidemark {

struct TidemarkMain::MenuEntry {
    const char* Name;
    const char* Caption;  // "-": a separator line
    void (TidemarkMain::*Handler)() = nullptr;
    QKeySequence::StandardKey Shortcut = QKeySequence::UnknownKey;
    // Where an entry is kept that is enabled later only; it starts disabled.
    QAction* ChangingEntries::*Kept = nullptr;
};

struct TidemarkMain::Menu {
    const char* Name;
    const char* Caption;
    std::vector<MenuEntry> Entries;
};

const std::vector<TidemarkMain::Menu>& TidemarkMain::Menus() {
    using T = TidemarkMain;
    using E = ChangingEntries;
    constexpr auto no_key = QKeySequence::UnknownKey;
    static const std::vector<Menu> menus{
        {"FileMenu",
         "&File",
         {{"FileOpen", "&Open Project", &T::FileOpen_Click, QKeySequence::Open},
          {"sep1", "-"},
          {"FileSave", "&Save Project", &T::FileSave_Click, QKeySequence::Save, &E::FileSave},
          {"FileSaveAs", "Save Project &As ...", &T::FileSaveAs_Click, QKeySequence::SaveAs},
          {"sep2", "-"},
          {"FileExit", "E&xit", &T::FileExit_Click, QKeySequence::Quit}}},
        {"BackgroundMenu",
         "&Background",
         {{"BackgroundLoad", "&Load background image", &T::BackgroundLoad_Click},
          {"BackgroundProperties", "Change background &properties", &T::BackgroundProperties_Click,
           no_key, &E::BackgroundProperties}}},
        {"Output",
         "&Output",
         {{"LWMsave", "Save &LWM data to file", &T::LWMsave_Click, no_key, &E::LWMsave},
          {"VTPsave", "Save &VTP data to file", &T::VTPsave_Click, no_key, &E::VTPsave},
          {"sep3", "-"},
          {"OutputPreferences", "&Preferences", &T::OutputPreferences_Click}}},
        {"HelpMenu",
         "&Help",
         {{"ShowStatus", "&Show Status Panel", &T::ShowStatus_Click},
          {"CellCalc", "&Cell Calculator", &T::CellCalc_Click},
          {"sep5", "-"},
          {"Instructions", "&Instructions", &T::Instructions_Click},
          {"Tutorial", "&Tutorial", &T::Tutorial_Click},
          {"sep4", "-"},
          {"HelpAbout", "&About", &T::HelpAbout_Click}}},
    };
    return menus;
}

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
      watch_(new ProjectWatch(this)),
      status_line_(new StatusLine(*statusBar())),
      coast_watch_(new CoastWatch(document_, this)) {
    setObjectName("TidemarkMain");
    setWindowTitle("Tidemark");
    setAcceptDrops(true);
    Build_menus();
    addToolBar(tool_bar_);
    setContextMenuPolicy(Qt::NoContextMenu);  // of the tool bar, which is always there
    setCentralWidget(map_);
    statusBar();
    Wire_tool_bar();
    Wire_watch();
    Wire_map();
    Wire_status_panel();
    Wire_coast_check();
    Form_Load();
}

TidemarkMain::~TidemarkMain() = default;

void TidemarkMain::Build_menus() {
    for (const Menu& menu : Menus()) {
        QMenu* const shown = menuBar()->addMenu(menu.Caption);
        shown->setObjectName(menu.Name);
        for (const MenuEntry& entry : menu.Entries) {
            const bool is_separator = QLatin1String(entry.Caption) == QLatin1String("-");
            QAction* const action =
                is_separator ? shown->addSeparator() : shown->addAction(entry.Caption);
            action->setObjectName(entry.Name);
            if (entry.Kept) {
                action->setEnabled(false);
                entries_.*entry.Kept = action;
            }
            if (entry.Shortcut != QKeySequence::UnknownKey) action->setShortcuts(entry.Shortcut);
            if (entry.Handler) connect(action, &QAction::triggered, this, entry.Handler);
        }
    }
}

void TidemarkMain::Wire_map() {
    connect(map_, &MapView::Resized, this, &TidemarkMain::Reload_picture_later);
    const MapCanvas* const canvas = &map_->Canvas();
    connect(canvas, &MapCanvas::Mouse_moved, this, &TidemarkMain::Picture2_MouseMove);
    connect(canvas, &MapCanvas::Mouse_pressed, this, &TidemarkMain::Picture2_MouseDown);
    connect(canvas, &MapCanvas::Key_pressed, this, &TidemarkMain::Picture2_KeyDown);
}

void TidemarkMain::Wire_tool_bar() {
    connect(&tool_bar_->EditUndo(), &QAction::triggered, this,
            [this] { Travel(&Document::Undo, "Undone: ", document_.What_undo()); });
    connect(&tool_bar_->EditRedo(), &QAction::triggered, this,
            [this] { Travel(&Document::Redo, "Redone: ", document_.What_redo()); });
    tool_bar_->Zoom(*map_);
    connect(&tool_bar_->GoTo(), &QAction::triggered, this, &TidemarkMain::Go_to);
    connect(&tool_bar_->ShowChosen(), &QAction::triggered, this, &TidemarkMain::Show_chosen);
    connect(&tool_bar_->FillCoast(), &QAction::triggered, this, &TidemarkMain::Fill_coast);
    connect(&tool_bar_->ClearCoast(), &QAction::triggered, this,
            [this] { Say(Clear_along_coast(document_, session_)); });
    connect(&tool_bar_->ImportCoast(), &QAction::triggered, this, [this] { Import_coast(""); });
    connect(tool_bar_, &ToolBar::Marks_changed, this, &TidemarkMain::Show_marks);
    key_drawing_ = new KeyDrawing(*map_, tool_bar_->DrawByKeys(), document_, session_, this);
}

void TidemarkMain::Wire_status_panel() {
    connect(status_, &Status::Resized, this, &TidemarkMain::Reload_picture_later);
    connect(&status_->VTP(), &VTPFrame::EditButton_clicked, this, &TidemarkMain::EditButton_Click);
    // The panel belongs to this window, whose shortcuts it has too.
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] {
        if (status_->isActiveWindow())
            activateWindow();
        else
            ShowStatus_Click();
    });
    connect(status_, &Status::RefreshButton_Click, this, &TidemarkMain::Refresh_Graphics);
    connect(status_, &Status::Graphics_outdated, this, &TidemarkMain::Refresh_Graphics);
    connect(status_, &Status::Show_wanted, this, &TidemarkMain::Show_chosen);
    connect(&status_->LWM(), &LWMFrame::Remarked, this, &TidemarkMain::Remark);
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

void TidemarkMain::FileOpen_Click() {
    if (const auto path = Choose_project_to_open(platform_)) Open(To_qt(*path));
}

void TidemarkMain::Open(const QString& path) {
    const std::string status =
        Open_project(Path_from_qt(path), document_, session_, platform_, Screen().Show_image);
    Say(status);
}

void TidemarkMain::FileSave_Click() {
    watch_->Watch({});  // our own writing is no other program's
    const auto watch_again = qScopeGuard([this] { Watch_project(); });
    if (Save_project(document_, session_, platform_) && recovery_) recovery_->Notice_saved();
    Refresh_Graphics();
}

void TidemarkMain::FileSaveAs_Click() {
    if (!Choose_project_to_save(document_, session_, platform_)) return;
    session_.Opened.FileSave = true;
    Show_project();
    FileSave_Click();
}

void TidemarkMain::FileExit_Click() {
    close();
}

void TidemarkMain::LWMsave_Click() {
    const Project& project = document_.Now();
    if (Save_LWM_file(project, messages_, files_)) Run_after_save(LWM_after_save(project));
    Refresh_Graphics();
}

void TidemarkMain::VTPsave_Click() {
    const Project& project = document_.Now();
    if (Save_VTP_file(project, session_, messages_, files_))
        Run_after_save(VTP_after_save(project));
    Refresh_Graphics();
}

void TidemarkMain::Run_after_save(const AfterSaveTask& task) {
    const auto over = qScopeGuard([this] { patience_.Over(""); });  // after an error, too
    After_save(task, platform_);
}

void TidemarkMain::OutputPreferences_Click() {
    Preferences dialog(platform_, this);
    if (const auto confirmed = dialog.Ask(Shown_preferences(document_.Now())))
        Confirm_preferences(document_, session_, *confirmed);
    else
        Refresh_Graphics();
}

void TidemarkMain::ShowStatus_Click() {
    status_->show();
    status_->raise();
    status_->activateWindow();
    Refresh_Graphics();
}

void TidemarkMain::Instructions_Click() {
    Show_help_document(InstructionsDocument);
}

void TidemarkMain::Tutorial_Click() {
    Show_help_document(TutorialDocument);
}

void TidemarkMain::Show_help_document(const HelpDocument& document) {
    const HelpPlaces places{Path_from_qt(QDir::currentPath()),
                            Path_from_qt(QCoreApplication::applicationDirPath())};
    Show_help(document, places, platform_);
    Refresh_Graphics();
}

void TidemarkMain::HelpAbout_Click() {
    Show_about(messages_);
    Refresh_Graphics();
}

void TidemarkMain::closeEvent(QCloseEvent* event) {
    event->setAccepted(is_session_ending_ || May_exit(session_, messages_));
    if (!event->isAccepted()) return;
    status_->hide();
    if (recovery_ && is_session_ending_) recovery_->Write_now();
    if (recovery_ && !is_session_ending_) recovery_->End();
}

// A menu that the pointer passes has nothing to say, and must not wipe what stands there.
bool TidemarkMain::event(QEvent* event) {
    const bool is_empty_tip =
        event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty();
    return is_empty_tip || QMainWindow::event(event);
}

namespace {

bool Is_project_file(const QString& path) {
    return path.endsWith(".tdm", Qt::CaseInsensitive);
}

// The one project or coast file that is being dragged; empty for anything else, and while a dialog
// works on the project that is there: being modal does not keep a drop away.
QString Dragged_file(const QMimeData& data) {
    if (QApplication::activeModalWidget()) return {};
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) return {};
    const QString path = urls.first().toLocalFile();
    return Is_project_file(path) || Is_coast_file(From_qt(path)) ? path : QString();
}

}  // namespace

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
        if (!Is_project_file(path)) return Import_coast(path);
        if (May_clear_project(session_, messages_)) Open(path);
    });
}

}  // namespace tidemark
