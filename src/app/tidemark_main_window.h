// The main window: the menu, the map, and the wiring between the rooms.
#pragma once

#include <memory>

#include <QAction>
#include <QMainWindow>

#include "app/status_panel_window.h"
#include "model/project.h"
#include "platform/platform.h"
#include "platform/qt_choosers.h"
#include "platform/qt_messages.h"

namespace tidemark {

class TidemarkMain : public QMainWindow {
    Q_OBJECT

  public:
    TidemarkMain();
    ~TidemarkMain() override;

    // As File > Open with this path chosen.
    void Open(const QString& path);

    const Project& Current_project() const { return *project_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    struct MenuEntry;
    struct Menu;
    static const std::vector<Menu>& Menus();

    void Build_menus();
    void Wire_status_panel();
    void Place_windows();
    void Form_Load();

    void FileOpen_Click();
    void FileSave_Click();
    void FileSaveAs_Click();
    void FileExit_Click();
    void LWMsave_Click();
    void VTPsave_Click();
    void ShowStatus_Click();

    QAction& Entry(const char* name) const;
    void Show_title(const std::string& project_path);
    void Refresh_Graphics();

    std::unique_ptr<Project> project_;
    QtMessages messages_;
    QtChoosers choosers_;
    DiskFiles files_;
    SystemClock clock_;
    Platform platform_;
    Status* status_;
};

}  // namespace tidemark
