#include "platform/qt_choosers.h"

#include <QApplication>
#include <QFileDialog>

#include "platform/qt_text.h"

namespace tidemark {

namespace {

// What the list of a chooser shows is the patterns as they are given. Those that it goes by have
// each letter in both cases, which some desktops tell apart; Windows does not, and knows no "[".
QString Name_filter(const std::string& filter) {
    const QString shown = To_qt(filter).replace(';', ' ');
#ifdef Q_OS_WIN
    return shown;
#else
    QString patterns;
    for (const QChar c : shown)
        patterns += c.isLetter() ? QString("[%1%2]").arg(c.toUpper()).arg(c.toLower()) : QString(c);
    return shown + " (" + patterns + ")";
#endif
}

}  // namespace

std::optional<std::string> QtChoosers::Choose(const FileChooser& chooser) {
    QWidget* const in_use = QApplication::activeModalWidget();
    QFileDialog dialog(in_use ? in_use : &owner_, To_qt(chooser.Title),
                       To_qt(chooser.InitialFolder));
    dialog.setObjectName(To_qt(chooser.Name));
    dialog.setAcceptMode(chooser.ForSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // Whether a file is there, and whether to overwrite it, is for the caller to say.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(Name_filter(chooser.Filter));
    dialog.setDefaultSuffix(To_qt(chooser.DefaultExtension));
    if (!chooser.FileName.empty()) dialog.selectFile(To_qt(chooser.FileName));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Path_from_qt(dialog.selectedFiles().constFirst());
}

}  // namespace tidemark
