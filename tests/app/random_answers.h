// A user who answers every dialog and message box at random, at once.
#pragma once

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "fakes/random_numbers.h"
#include "walk/driver.h"

namespace tidemark {

// How a dialog is answered: one of the rows goes into its fields, some of its buttons are clicked,
// and Enter or Escape ends it. Files are named below the current folder.
struct Answers {
    QString Dialog, Fields, Buttons;
    std::vector<QString> Rows;
};

// Good answers are more likely than bad ones, so that every dialog ends. The preferences that would
// start a program stay as they are.
inline const std::vector<Answers> AllAnswers{
    {"EditPoint",
     "VTPX,VTPY,LOD13X,LOD13Y",
     "Option1,Option2",
     {"5000,5600,0,255", "5104.5,5871,128,127.5", "4848,6129, 12.5 ,256", "x,1e99,-1,"}},
    {"Preferences",
     "RootText,FSname",
     "Check2,Check4,FScopy",
     {"./one.asm,.", "./two.x,.", "./no such folder/x.asm,", "no extension,."}},
    {"BGproperties",
     "LOD8X,LOD8Y,LOD13tlX,LOD13tlY,LOD13brX,LOD13brY",
     "ShowCalc",
     {"122,148,3,5,5,7", "767,511,29,29,31,31", "0,0,0,12,2,14", "768,0,9,9,8,11"}},
    {"CellCalculator",
     "CalcLatText,CalcLonText",
     "",
     {"37:49:12.5,122:28:42", "8:60:60,0:7:0", "91:00:00,0:0:0", "5:7,::"}},
    {"GoTo", "GoToColumn,GoToRow", "", {"3,5", "4,6", "5,7", "x,", "31,0"}},
    {"FillCoast", "", "FillWater,FillLand,FillInside,FillInView", {""}},
    {"ImportCoast",
     "ImportWidthText,ToleranceText",
     "CoastFileButton,ReverseCheck,ClearCellsCheck,FillWaterCheck,FillLandCheck",
     {"80,4", "40,0.5", "0,60", "x,4", "80,0"}},
    {"OpenCoast", "fileNameEdit", "", {"coast.json", "coast.json", "broken.bmp"}},
    {"LoadBMPdialog", "fileNameEdit", "", {"map.bmp", "map2.bmp", "broken.bmp"}},
    {"OpenProject", "fileNameEdit", "", {"a.TDM", "b.TDM", "none"}},
    {"SaveProject", "fileNameEdit", "", {"a.TDM", "b.TDM", "c"}},
};

// While it lives, each modal dialog of the program is answered in the first turn of its own event
// loop.
class RandomAnswers : public QObject {
  public:
    explicit RandomAnswers(RandomNumbers& random) : random_(random) {
        qApp->installEventFilter(this);
    }

    QStringList Messages;  // all that were shown, "title: text"

    bool eventFilter(QObject* object, QEvent* event) override {
        QPointer<QDialog> dialog = qobject_cast<QDialog*>(object);
        const auto answer = [this, dialog] {
            if (dialog) Answer(*dialog);
        };
        if (dialog && dialog->isModal() && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
        return false;
    }

  private:
    void Answer(QDialog& dialog) {
        if (auto* const box = qobject_cast<QMessageBox*>(&dialog)) {
            Messages << box->windowTitle() + ": " + box->text();
            const auto buttons = box->buttons();
            return random_.One_in(8) ? Press(*box, Qt::Key_Escape)
                                     : Click(*random_.One_of(buttons));
        }
        const auto& [name, fields, buttons, rows] =
            *std::ranges::find(AllAnswers, dialog.objectName(), &Answers::Dialog);
        for (const QString& button : buttons.split(',', Qt::SkipEmptyParts))
            if (random_.One_in(3)) Click(Control<QAbstractButton>(dialog, button));
        if (auto* const modes = dialog.findChild<QComboBox*>("ImportModeCombo"))
            for (int lines = random_.Number(0, 9); lines > 0; --lines) Press(*modes, Qt::Key_Down);
        const QStringList texts = random_.One_of(rows).split(',', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < texts.size(); ++i) {
            auto& field = Control<QLineEdit>(dialog, fields.split(',')[i]);
            field.setText(texts[i]);
            Q_EMIT field.textEdited(texts[i]);
        }
        Press(dialog, random_.One_in(5) ? Qt::Key_Escape : Qt::Key_Enter);
        if (dialog.isVisible()) Press(dialog, Qt::Key_Escape);
    }

    RandomNumbers& random_;
};

}  // namespace tidemark
