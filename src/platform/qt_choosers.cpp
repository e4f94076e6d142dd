#include "platform/qt_choosers.h"

#include <QApplication>
#include <QFileDialog>

#include "platform/qt_text.h"

namespace tidemark {

std::optional<std::string> QtChoosers::Choose(const FileChooser& chooser) {
    QWidget* const in_use = QApplication::activeModalWidget();
    QFileDialog dialog(in_use ? in_use : &owner_, To_qt(chooser.Title),
                       To_qt(chooser.InitialFolder));
    dialog.setObjectName(To_qt(chooser.Name));
    dialog.setAcceptMode(chooser.ForSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // Whether a file is there, and whether to overwrite it, is for the caller to say.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilter(To_qt(chooser.Filter).replace(';', ' '));
    dialog.setDefaultSuffix(To_qt(chooser.DefaultExtension));
    if (!chooser.FileName.empty()) dialog.selectFile(To_qt(chooser.FileName));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return Path_from_qt(dialog.selectedFiles().constFirst());
}

}  // namespace tidemark
