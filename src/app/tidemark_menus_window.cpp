// The main window's menus, and what their entries do.
#include <QCoreApplication>
#include <QDir>
#include <QMenuBar>
#include <QScopeGuard>

#include "app/project_commands.h"
#include "app/tidemark_main_window.h"
#include "output/assembler_files.h"
#include "output/preferences_window.h"
#include "platform/qt_text.h"

namespace tidemark {

struct TidemarkMain::MenuEntry {
    const char* Name;
    const char* Caption;  // "-": a separator line
    void (TidemarkMain::*Handler)() = nullptr;
    QKeySequence::StandardKey Shortcut = QKeySequence::UnknownKey;
    // Where an entry is kept that is enabled only in the course of time; it starts disabled.
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

void TidemarkMain::FileOpen_Click() {
    if (const auto path = Choose_project_to_open(platform_)) Open(To_qt(*path));
}

void TidemarkMain::FileSave_Click() {
    safekeeping_.Save();
    display_.Redraw();
}

void TidemarkMain::FileSaveAs_Click() {
    if (!Choose_project_to_save(document_, session_, platform_)) return;
    session_.Opened.FileSave = true;
    Show_project();
    FileSave_Click();
}

void TidemarkMain::FileExit_Click() {
    safekeeping_.Session_goes_on();  // who gives a command has stayed
    close();
}

void TidemarkMain::BackgroundLoad_Click() {
    background_.Load();
}

void TidemarkMain::BackgroundProperties_Click() {
    background_.Change_properties();
}

void TidemarkMain::LWMsave_Click() {
    const Project& project = document_.Now();
    if (Save_LWM_file(project, messages_, files_)) Run_after_save(LWM_after_save(project));
    display_.Redraw();
}

void TidemarkMain::VTPsave_Click() {
    const Project& project = document_.Now();
    if (Save_VTP_file(project, session_, messages_, files_))
        Run_after_save(VTP_after_save(project));
    display_.Redraw();
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
        display_.Redraw();
}

void TidemarkMain::ShowStatus_Click() {
    status_->show();
    status_->raise();
    status_->activateWindow();
    display_.Redraw();
}

void TidemarkMain::CellCalc_Click() {
    background_.Calculate();
    display_.Redraw();
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
    display_.Redraw();
}

void TidemarkMain::HelpAbout_Click() {
    Show_about(messages_);
    display_.Redraw();
}

}  // namespace tidemark
