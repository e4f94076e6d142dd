// The main window: the menu, the map, and the wiring between the rooms.
#pragma once

#include <memory>

#include <QAction>
#include <QMainWindow>

#include "app/coast_check_window.h"
#include "app/coast_watch_window.h"
#include "app/fill_coast_window.h"
#include "app/import_coast_window.h"
#include "app/key_drawing_window.h"
#include "app/map_commands.h"
#include "app/project_watch_window.h"
#include "app/recovery_keeper_window.h"
#include "app/status_line_window.h"
#include "app/status_panel_window.h"
#include "app/tool_bar_window.h"
#include "canvas/map_view_window.h"
#include "georef/background_properties_window.h"
#include "georef/cell_calculator_window.h"
#include "georef/go_to_window.h"
#include "model/document.h"
#include "output/after_save.h"
#include "output/help.h"
#include "platform/platform.h"
#include "platform/qt_choosers.h"
#include "platform/qt_messages.h"
#include "platform/qt_patience.h"
#include "vtp_edit/edit_point_window.h"

namespace tidemark {

class TidemarkMain : public QMainWindow {
    Q_OBJECT

  public:
    TidemarkMain();
    ~TidemarkMain() override;

    // From now on unsaved work is kept in this folder, in case the program is ended from outside,
    // and what other editors have lost there is offered once, by an event.
    void Keep_work_in(const std::string& folder);

    // As File > Open with this path chosen.
    void Open(const QString& path);

    const Project& Current_project() const { return document_.Now(); }
    const Document& Current_document() const { return document_; }
    const Session& Current_session() const { return session_; }

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    struct MenuEntry;
    struct Menu;
    static const std::vector<Menu>& Menus();

    // The entries that are enabled and disabled while the program runs.
    struct ChangingEntries {
        QAction *FileSave, *BackgroundProperties, *LWMsave, *VTPsave;
    };

    // Start-up, in tidemark_main_window.cpp.
    void Build_menus();
    void Wire_map();
    void Wire_tool_bar();
    void Wire_watch();
    void Wire_status_panel();
    void Place_windows();
    void Form_Load();

    // Files, output and help, in tidemark_main_window.cpp.
    void FileOpen_Click();
    void FileSave_Click();
    void FileSaveAs_Click();
    void FileExit_Click();
    void LWMsave_Click();
    void VTPsave_Click();
    void OutputPreferences_Click();
    void ShowStatus_Click();
    void Instructions_Click();
    void Tutorial_Click();
    void HelpAbout_Click();

    // The map and what is done on it, in tidemark_map_window.cpp.
    void BackgroundLoad_Click();
    void BackgroundProperties_Click();
    void CellCalc_Click();
    void Reload_picture();
    void Reload_picture_later();
    void Travel(void (Document::*where)(), const char* said, const std::string& step);
    void Picture2_MouseMove(float x, float y);
    void Picture2_MouseDown(int button);
    void Picture2_KeyDown(int key_code);
    void Left_click();
    void Select_point();
    void Go_to();
    void Show_chosen();
    void Fill_coast();
    void Import_coast(const QString& path);
    void Show_preview(const MapMarks& preview);
    void Show_place(VTPPlace place);
    void Show_marks();
    void EditButton_Click();
    void Show_project();
    void Show_title();
    bool Show_picture();
    void Refresh_Graphics();

    // The coast check, in tidemark_coast_window.cpp.
    void Wire_coast_check();
    void CoastCheck_Click();
    void Place_coast_check();
    std::vector<MarkLine> Frame_of_finding();
    void Bring_finding_into_view();
    void Go_to_finding(const Finding& finding);
    void Add_polygon();

    MapScreen Screen();
    EditPoint& Edit_point_dialog();
    BGproperties& Background_properties();
    CellCalculator& Calculator();
    void Notice_state();
    void Watch_project();
    void Say(const std::string& text);
    void Remark(const QString& text);
    Q_INVOKABLE void Session_ends();
    void Offer_lost_work();
    void End_from_outside(int signals);
    void Run_after_save(const AfterSaveTask& task);
    void Show_help_document(const HelpDocument& document);

    Session session_;
    Document document_{session_};
    QtMessages messages_;
    QtChoosers choosers_;
    DiskFiles files_;
    SystemClock clock_;
    QtPatience patience_;
    SystemPrograms programs_;
    Platform platform_;
    ChangingEntries entries_{};
    MapView* map_;
    Status* status_;
    ToolBar* tool_bar_;
    KeyDrawing* key_drawing_ = nullptr;
    ProjectWatch* watch_;
    StatusLine* status_line_;
    CoastWatch* coast_watch_;
    bool picture_is_gone_ = false;    // that the step last shown wants
    bool is_session_ending_ = false;  // of the desktop
    QString remark_;                  // on the polygon added last
    // Made when they are first used, so that start-up does not wait for them; kept from then on.
    EditPoint* edit_point_ = nullptr;
    BGproperties* background_properties_ = nullptr;
    CellCalculator* calculator_ = nullptr;
    GoTo* go_to_ = nullptr;
    FillCoast* fill_coast_ = nullptr;
    CoastCheck* coast_check_ = nullptr;
    ImportCoast* import_coast_ = nullptr;
    MapMarks preview_;  // of what is being imported
    bool redrawing_ = false;
    std::unique_ptr<RecoveryKeeper> recovery_;  // null: nothing is kept; the first to go
};

}  // namespace tidemark
