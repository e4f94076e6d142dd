// Every control, entry and event of the main window and the panel, and all that is to be seen
// afterwards; and each of them stands in the Instructions.
#include <filesystem>

#include <QDropEvent>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

// While it lives, each dialog and box is written down, a box by its first line, and closed with
// Escape.
class Escaping : public QObject {
  public:
    Escaping() { qApp->installEventFilter(this); }

    QStringList Shown;  // since it was last emptied
    std::function<void(QWidget&)> Before_closing = [](QWidget&) {};

    bool eventFilter(QObject* object, QEvent* event) override {
        QPointer<QDialog> dialog = qobject_cast<QDialog*>(object);
        if (!dialog || event->type() != QEvent::Show) return false;
        const auto* const box = qobject_cast<QMessageBox*>(object);
        Shown << (box ? "box " + box->text().section('\n', 0, 0)
                      : "dialog " + dialog->objectName());
        const auto escape = [this, dialog] {
            if (!dialog) return;
            Before_closing(*dialog);
            Press(*dialog, Qt::Key_Escape);
        };
        QMetaObject::invokeMethod(this, escape, Qt::QueuedConnection);
        return false;
    }
};

void Send_drop(QWidget& window, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    QCoreApplication::sendEvent(&window, &drop);
}

// Below the folder; the picture is in it too.
Project Bay(const TemporaryFolder& folder) {
    Project p;
    Place_area(p, 3, 5, 5, 7);
    p.BackgroundFile = folder / "map.bmp";
    p.BackgroundLoaded = p.PrefsSet = true;
    p.LWMFileName = folder / "bay-LWM.asm";
    p.VTPFileName = folder / "bay-VTP.asm";
    p.ProjectFile = folder / "bay.TDM";
    Add_segment(p, RiverCoast, 40, {{5000, 5700}, {5100, 5800}});
    Add_segment(p, SandWithWaves, 80, {{4908, 5420}, {4938, 5420}, {4938, 5450}, {4908, 5450}});
    Add_polygon(p, 3, 6, LandPolygon, ConformsHeight, 4);
    Add_cleared_cell(p, 3, 5, ClearRivers);
    return p;
}

// The windows over a project with a picture, a river, an island, a polygon and a cleared cell.
class Scene {
  public:
    explicit Scene(const TemporaryFolder& folder, const Project& project)
        : folder_(folder), path_(QString::fromStdString(project.ProjectFile)) {
        Write_picture(768);
        Write_file(project.ProjectFile, Project_bytes(project, "then"));
        window_.show();
        window_.Open(path_);
        Of<QCheckBox>("NewSegment").setChecked(false);
        QApplication::processEvents();
    }

    // Does "name event": an entry of a bar by its name alone, else what happens to a control. A
    // number in front says how often.
    void Do(const QString& step) {
        const QString name = step.section(' ', 0, 0), event = step.section(' ', 1);
        for (int left = name.toInt(); left > 0; --left) Do(event);
        if (name.toInt() > 0) return;
        if (name == "map.bmp") return Write_picture(700);
        if (auto* const entry = window_.findChild<QAction*>(name)) return Choose(*entry);
        Do_to(name == "TidemarkMain" ? window_ : Of<QWidget>(name), event);
    }

    // All that the windows show, one line each.
    QStringList Seen() {
        QStringList seen{"title " + window_.windowTitle(),
                         "status bar " + window_.statusBar()->currentMessage(),
                         Of<QLabel>("StatusLabel1").text(), Of<QLabel>("StatusLabel2").text(),
                         QString("picture of %1").arg(canvas_.width())};
        for (QAction* const entry : window_.findChildren<QAction*>())
            if (!entry->text().isEmpty())
                seen << entry->objectName() + (entry->isEnabled() ? " on" : " off");
        seen << Of<QToolBar>("ToolBar").actions().constFirst()->toolTip();
        for (const ListBox* const list : panel_.findChildren<ListBox*>())
            seen << list->objectName() +
                        QString(" %1 of %2").arg(list->Selected() + 1).arg(list->Lines().size());
        for (const QAbstractButton* const button : panel_.findChildren<QAbstractButton*>())
            if (button->isCheckable())
                seen << button->objectName() + (button->isChecked() ? " checked" : " unchecked");
        for (const QLineEdit* const field : panel_.findChildren<QLineEdit*>())
            seen << field->objectName() + ' ' + field->text() +
                        (field->isEnabled() ? "" : " (disabled)");
        seen << Of<QComboBox>("DrawModeCombo").currentText();
        for (const QScrollBar* const bar : window_.findChildren<QScrollBar*>())
            if (!bar->objectName().isEmpty())
                seen << bar->objectName() + QString(" %1").arg(bar->value());
        for (const QWidget* const window : std::initializer_list<QWidget*>{&window_, &panel_})
            seen << window->objectName() + (window->isVisible() ? " shown" : " hidden");
        seen << (panel_.isActiveWindow() ? "Status active" : "Status not active");
        return seen;
    }

    // What a redraw takes away again.
    void Scribble() {
        canvas_.Surface().Pen_colour(scribble_);
        canvas_.Surface().Pen_width(3);
        canvas_.Surface().Line({0, 1}, {9, 1});
    }
    bool Is_redrawn() {
        const QColor seen = canvas_.grab({4, 1, 1, 1}).toImage().pixelColor(0, 0);
        return seen != QColor(scribble_.Red, scribble_.Green, scribble_.Blue);
    }

    template <class T>
    T& Of(const QString& name) {
        return Control<T>(window_, name);
    }
    TidemarkMain& Window() { return window_; }

  private:
    void Write_picture(int size) {
        Write_file(folder_ / "map.bmp", BMP_bytes(size, size).toStdString());
    }

    void Choose(QAction& entry) {
        const auto menus = window_.findChildren<QMenu*>();
        const auto menu = std::ranges::find_if(
            menus, [&](const QMenu* each) { return each->actions().contains(&entry); });
        if (menu != menus.end())
            Choose_entry(window_, (*menu)->objectName(), entry.objectName());
        else
            Click(Of<QWidget>(entry.objectName() + "Button"));
    }

    // "click", "left X Y", "right X Y", "move X Y", "type TEXT", "choose LINE", "size W H",
    // "drop", "held KEY"; everything else is a key.
    void Do_to(QWidget& control, const QString& event) {
        const QString word = event.section(' ', 0, 0), rest = event.section(' ', 1);
        const QPoint place(event.section(' ', 1, 1).toInt(), event.section(' ', 2, 2).toInt());
        if (word == "click") return Click_at(control, {8, control.height() / 2});
        if (word == "left") return Click_at(control, place);
        if (word == "right") return Click_at(control, place, Qt::RightButton);
        if (word == "move") return Move_to(control, place);
        if (word == "type") return Type(control, rest);
        if (word == "choose") return Choose_line(static_cast<QComboBox&>(control), rest);
        if (word == "size") return control.resize(place.x(), place.y());
        if (word == "drop") return Send_drop(control, path_);
        const QKeyCombination keys = QKeySequence(word == "held" ? rest : event)[0];
        QKeyEvent press(QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), "", word == "held");
        if (word == "held")
            QCoreApplication::sendEvent(&control, &press);
        else
            QTest::keyClick(&control, keys.key(), keys.keyboardModifiers());
    }

    static constexpr Colour scribble_{12, 34, 56};

    const TemporaryFolder& folder_;
    const QString path_;
    TidemarkMain window_;
    Status& panel_ = Of<Status>("Status");
    MapCanvas& canvas_ = Of<MapCanvas>("Picture2");
};

class ControlsTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    Escaping escaping_;
    const Variable path_{"PATH", ""};  // without a browser
};

TEST_F(ControlsTest, WhatEachOfThemChanges) {
    Expect_cases("app/data/controls.txt", [this](const Given& given) {
        Scene scene(folder_, Bay(folder_));
        QStringList steps;
        for (const std::string& step : given) steps << QString::fromStdString(step);
        const QString last = steps.takeLast();
        for (const QString& step : steps) scene.Do(step);
        QApplication::processEvents();
        escaping_.Shown.clear();
        scene.Scribble();
        const QStringList before = scene.Seen();
        scene.Do(last);
        QApplication::processEvents();
        QStringList changes = escaping_.Shown;
        if (scene.Is_redrawn()) changes << "redrawn";
        for (const QString& line : scene.Seen())
            if (!before.contains(line)) changes << line;
        QString text = changes.join('\n');
        return text.replace(QString::fromStdString(folder_.Path()), "~").toStdString();
    });
}

TEST_F(ControlsTest, EachOfThemIsInTheTableAboveAndInTheInstructions) {
    const std::string table = Source_file("tests/app/data/controls.txt");
    const QString page = QString::fromStdString(Source_file("Documentation/Instructions.html"));
    const auto expect_marked = [&](const char* mark, QString text) {
        text = text.remove('&').trimmed().toHtmlEscaped();
        const QString words = QRegularExpression::escape(text).replace("\\ ", "\\s+");
        const QRegularExpression marked(QString("<%1>([^<]* &gt; )?%2</").arg(mark, words));
        EXPECT_TRUE(page.contains(marked)) << "the page lacks " << text.toStdString();
    };
    const char* const caption = "b class=\"ui\"";
    const char* const caption_or_name = "(?:b class=\"ui\"|q class=\"says\")";
    const auto expect_captions = [&](const QWidget& window) {
        for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>())
            if (!button->text().isEmpty() && !button->text().toInt())
                expect_marked(caption, button->text());
        for (const QGroupBox* const frame : window.findChildren<QGroupBox*>())
            if (!frame->title().isEmpty()) expect_marked(caption, frame->title());
        for (const QLabel* const label : window.findChildren<QLabel*>())
            if (label->text().endsWith(':')) expect_marked(caption_or_name, label->text());
        for (const QWidget* const control : window.findChildren<QWidget*>())
            if (control->focusPolicy() != Qt::NoFocus && !control->accessibleName().isEmpty())
                expect_marked(caption_or_name, control->accessibleName());
        for (const QShortcut* const shortcut : window.findChildren<QShortcut*>())
            expect_marked("kbd", shortcut->key().toString(QKeySequence::PortableText));
    };
    Scene scene(folder_, Bay(folder_));
    const QWidget& window = scene.Window();
    for (const QAction* const entry : window.findChildren<QAction*>()) {
        if (entry->text().isEmpty() || entry->menu() || entry->objectName().isEmpty()) continue;
        const bool is_tool = scene.Of<QToolBar>("ToolBar").actions().contains(entry);
        expect_marked(is_tool ? caption : "b class=\"menu\"", entry->text());
        for (const QKeySequence& keys : entry->shortcuts())
            expect_marked("kbd", keys.toString(QKeySequence::PortableText));
        EXPECT_NE(table.find(entry->objectName().toStdString() + " =>"), table.npos)
            << entry->objectName().toStdString();
    }
    for (const QWidget* const control : scene.Of<QWidget>("Status").findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (control->focusPolicy() == Qt::NoFocus || name.isEmpty() || name.startsWith("qt_"))
            continue;
        EXPECT_NE(table.find(name.toStdString() + ' '), table.npos) << name.toStdString();
    }
    const QComboBox& modes = scene.Of<QComboBox>("DrawModeCombo");
    for (int i = 0; i < modes.count(); ++i) expect_marked(caption, modes.itemText(i));
    expect_captions(window);
    escaping_.Before_closing = expect_captions;
    for (const char* const step :
         {"VTPlistbox Down", "EditButton click", "BackgroundProperties", "OutputPreferences",
          "CellCalc", "CoastCheck", "GoTo", "FillCoast", "ImportCoast"})
        scene.Do(step);
    QApplication::processEvents();
    EXPECT_EQ(escaping_.Shown.size(), 8);
}

TEST_F(ControlsTest, AnErrorOfAHandlerIsShownAndTheProgramGoesOn) {
    Scene scene(folder_, Bay(folder_));
    auto& refresh = scene.Of<QPushButton>("RefreshButton");
    const Project before = scene.Window().Current_project();
    const auto fault = QObject::connect(&refresh, &QPushButton::clicked,
                                        [] { throw std::runtime_error("It went wrong."); });
    EXPECT_NO_THROW(Click(refresh));
    EXPECT_EQ(escaping_.Shown.join('\n').toStdString(), "box It went wrong.");
    EXPECT_TRUE(scene.Window().Current_project() == before);
    QObject::disconnect(fault);
    scene.Do("Picture2 left 280 300");
    EXPECT_EQ(scene.Window().Current_project().VTPCount, before.VTPCount + 1);
}

// The box lets the window be resized, which has the picture loaded and all drawn anew.
TEST_F(ControlsTest, ABoxInTheMiddleOfARedrawDoesNotComeUpTwice) {
    Project odd = Bay(folder_);
    odd.VTPMode(1) = 77;
    Scene scene(folder_, odd);
    const auto boxes = escaping_.Shown.size();
    escaping_.Before_closing = [&](QWidget&) {
        scene.Do("TidemarkMain size 700 500");
        QApplication::processEvents();
    };
    scene.Do("RefreshButton click");
    EXPECT_EQ(escaping_.Shown.mid(boxes).join('\n').toStdString(), "box Unknown case encountered.");
}

// Esc is the last thing the user does meanwhile.
TEST_F(ControlsTest, WhileTheCompilerRunsNothingElseIsDoneAndAfterwardsNothingIsWaitedFor) {
    Project compiled = Bay(folder_);
    compiled.LWMCompile = compiled.CopyToFS = true;
    compiled.FSFolder = folder_ / "to/";
    std::filesystem::create_directory(folder_ / "to");
    Scene scene(folder_, compiled);
    const QStatusBar& status_bar = *scene.Window().statusBar();
    const auto save_with_compiler = [&](const char* compiler) {
        Write_file(folder_ / "BGLC.EXE",
                   "#!/bin/sh\nexec >/dev/null 2>&1\n" + std::string(compiler));
        std::filesystem::permissions(folder_ / "BGLC.EXE", std::filesystem::perms::owner_all);
        escaping_.Shown.clear();
        scene.Do("LWMsave");
        QApplication::processEvents();
    };
    QTimer::singleShot(50, &scene.Window(), [&] {
        EXPECT_EQ(status_bar.currentMessage(), "Waiting for BGLC.EXE to compile bay-LWM.asm");
        const QStringList before = scene.Seen();
        for (const char* const step : {"TidemarkMain drop", "Picture2 left 280 300",
                                       "NewSegment click", "TidemarkMain Ctrl+Z"})
            scene.Do(step);
        EXPECT_EQ(scene.Seen().join('\n').toStdString(), before.join('\n').toStdString());
        scene.Do("Picture2 Esc");
    });
    save_with_compiler("exec /bin/sleep 1");
    EXPECT_EQ(status_bar.currentMessage().toStdString(), "bay-LWM.BGL was not copied.");
    EXPECT_EQ(escaping_.Shown.join('\n').toStdString(), "");
    save_with_compiler("echo compiled > bay-LWM.BGL");
    EXPECT_EQ(status_bar.currentMessage().toStdString(), "");
    EXPECT_EQ(escaping_.Shown.size(), 1);
    EXPECT_EQ(File_content(folder_ / "to/bay-LWM.BGL"), "compiled\n");
}

}  // namespace
}  // namespace tidemark
