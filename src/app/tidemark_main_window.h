// The main window: the frame that holds the map, the menus and the tool bar, and connects the parts
// that do the work.
#pragma once

#include <QAction>
#include <QMainWindow>

#include "app/background_dialogs_window.h"
#include "app/coast_dialogs_window.h"
#include "app/coast_watch_window.h"
#include "app/map_display_window.h"
#include "app/map_editing_window.h"
#include "app/map_guide_window.h"
#include "app/safekeeping_window.h"
#include "app/status_line_window.h"
#include "app/status_panel_window.h"
#include "app/tool_bar_window.h"
#include "canvas/map_view_window.h"
#include "model/document.h"
#include "output/after_save.h"
#include "output/help.h"
#include "platform/platform.h"
#include "platform/qt_choosers.h"
#include "platform/qt_messages.h"
#include "platform/qt_patience.h"

namespace tidemark {

class TidemarkMain : public QMainWindow {
    Q_OBJECT

  public:
    TidemarkMain();
    ~TidemarkMain() override;

    // See Safekeeping.
    void Keep_work_in(const std::string& folder) { safekeeping_.Keep_work_in(folder); }

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

    // The entries that are enabled and disabled while the program runs.
    struct ChangingEntries {
        QAction *FileSave, *BackgroundProperties, *LWMsave, *VTPsave;
    };

    // In tidemark_menus_window.cpp.
    static const std::vector<Menu>& Menus();
    void Build_menus();
    void FileOpen_Click();
    void FileSave_Click();
    void FileSaveAs_Click();
    void FileExit_Click();
    void BackgroundLoad_Click();
    void BackgroundProperties_Click();
    void LWMsave_Click();
    void VTPsave_Click();
    void OutputPreferences_Click();
    void ShowStatus_Click();
    void CellCalc_Click();
    void Instructions_Click();
    void Tutorial_Click();
    void HelpAbout_Click();
    void Run_after_save(const AfterSaveTask& task);
    void Show_help_document(const HelpDocument& document);

    void Wire_tool_bar();
    void Wire_map();
    void Wire_status_panel();
    void Wire_coast();
    void Place_windows();
    void Form_Load();

    void Travel(void (Document::*where)(), const char* said, const std::string& step);
    void Show_project();
    void Show_title();

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
    StatusLine* status_line_;

    CoastWatch coast_watch_;
    MapDisplay display_;
    MapGuide guide_;
    MapEditing editing_;
    BackgroundDialogs background_;
    CoastDialogs coast_;
    Safekeeping safekeeping_;
    bool picture_is_gone_ = false;  // that the step last shown wants
};

}  // namespace tidemark
