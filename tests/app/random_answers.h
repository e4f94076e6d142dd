// A user who answers every dialog and message box by chance, at once.
#pragma once

#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include "fakes/random_numbers.h"
#include "walk/driver.h"

namespace tidemark {

// While it lives, each dialog of the program is answered in the first turn of its own event loop.
// Good answers are more likely than bad ones, so that every dialog ends.
class RandomAnswers : public QObject {
  public:
    // Files and folders that the answers name are below `folder`.
    RandomAnswers(RandomNumbers& random, QString folder)
        : random_(random), folder_(std::move(folder)) {
        qApp->installEventFilter(this);
    }

    QStringList Messages;  // all that were shown, "title: text"

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Show) return false;
        if (QPointer<QDialog> dialog = qobject_cast<QDialog*>(object))
            QMetaObject::invokeMethod(
                this,
                [this, dialog] {
                    if (dialog) Answer(*dialog);
                },
                Qt::QueuedConnection);
        return false;
    }

  private:
    void Answer(QDialog& dialog) {
        if (auto* const box = qobject_cast<QMessageBox*>(&dialog)) return Answer_box(*box);
        if (dialog.objectName() == "EditPoint") return Answer_edit_point(dialog);
        if (dialog.objectName() == "Preferences") return Answer_preferences(dialog);
        if (dialog.objectName() == "BGproperties") return Answer_properties(dialog);
        if (dialog.objectName() == "CellCalculator") return Answer_calculator(dialog);
        Answer_chooser(dialog);
    }

    void Answer_box(QMessageBox& box) {
        Messages << box.windowTitle() + ": " + box.text();
        const auto buttons = box.buttons();
        if (random_.One_in(8))
            Press(box, Qt::Key_Escape);
        else
            Click(*buttons[random_.Number(0, static_cast<int>(buttons.size()) - 1)]);
    }

    void Answer_edit_point(QDialog& dialog) {
        for (int attempt = 0; attempt < 3 && dialog.isVisible(); ++attempt) {
            const bool in_cell = random_.One_in(2);
            Click(Control<QRadioButton>(dialog, in_cell ? "Option2" : "Option1"));
            auto& x = Control<QLineEdit>(dialog, in_cell ? "LOD13X" : "VTPX");
            auto& y = Control<QLineEdit>(dialog, in_cell ? "LOD13Y" : "VTPY");
            const int somewhere = random_.Number(in_cell ? -20 : -200, in_cell ? 280 : 200);
            x.setText(random_.One_in(2) ? QString::number(x.text().toInt() + somewhere)
                                        : Some_number());
            if (random_.One_in(2)) y.setText(QString::number(random_.Number(0, 255)) + ".5");
            if (random_.One_in(2))
                Press(y, Qt::Key_Enter);
            else
                Click(Control<QPushButton>(dialog, "OKButton"));
        }
        if (dialog.isVisible()) Press(dialog, Qt::Key_Escape);
    }

    // The options that would start a program stay as they are.
    void Answer_preferences(QDialog& dialog) {
        const QStringList roots{folder_ + "/one.asm", folder_ + "/two.x", "no extension",
                                folder_ + "/no such folder/three.asm", ""};
        for (const char* check : {"Check2", "Check4", "FScopy"})
            if (random_.One_in(2)) Click(Control<QCheckBox>(dialog, check));
        Control<QLineEdit>(dialog, "RootText").setText(roots[random_.Number(0, 4)]);
        Control<QLineEdit>(dialog, "FSname").setText(folder_);
        Click(Control<QPushButton>(dialog, "OKbutton"));
        if (dialog.isVisible()) Press(dialog, Qt::Key_Escape);
    }

    void Answer_properties(QDialog& dialog) {
        const bool at_edge = random_.One_in(3);
        const int left = at_edge ? 29 : random_.Number(0, 28);
        const int top = at_edge ? 29 : random_.Number(0, 28);
        const auto set = [&dialog](const char* name, int value) {
            Control<QLineEdit>(dialog, name).setText(QString::number(value));
        };
        set("LOD8X", random_.One_in(8) ? 768 : random_.Number(0, 767));
        set("LOD8Y", random_.Number(0, 511));
        set("LOD13tlX", left);
        set("LOD13tlY", top);
        set("LOD13brX", left + (random_.One_in(8) ? -1 : 2));
        set("LOD13brY", top + 2);
        if (random_.One_in(10)) Click(Control<QPushButton>(dialog, "ShowCalc"));
        Press(dialog, random_.One_in(4) ? Qt::Key_Escape : Qt::Key_Enter);
    }

    void Answer_calculator(QDialog& dialog) {
        const QStringList texts{"37:49:12.5", "8:60:60", "5:7", "91:00:00", "::"};
        Control<QLineEdit>(dialog, "CalcLatText").setText(texts[random_.Number(0, 4)]);
        Control<QLineEdit>(dialog, "CalcLonText").setText(texts[random_.Number(0, 1)]);
        Click(Control<QPushButton>(dialog, "CalcButton"));
        if (dialog.isVisible()) Click(Control<QPushButton>(dialog, "CancelButton"));
    }

    void Answer_chooser(QDialog& dialog) {
        const bool for_image = dialog.objectName() == "LoadBMPdialog";
        const QStringList names = for_image ? QStringList{"map.bmp", "map2.bmp", "broken.bmp"}
                                            : QStringList{"a.TDM", "b.TDM", "c"};
        if (random_.One_in(4)) return Press(dialog, Qt::Key_Escape);
        auto& name = Control<QLineEdit>(dialog, "fileNameEdit");
        name.setText(folder_ + "/" + names[random_.Number(0, 2)]);
        Press(name, Qt::Key_Enter);
    }

    QString Some_number() {
        const QStringList numbers{"", "x", "0", "255", "256", "-1", "70000", "1e99", " 12.5 "};
        return numbers[random_.Number(0, static_cast<int>(numbers.size()) - 1)];
    }

    RandomNumbers& random_;
    QString folder_;
};

}  // namespace tidemark
