// Making controls that carry their own names, and what dialogs have in common.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

namespace tidemark {

// A control with an object name and a caption (a field's text).
template <class Control>
Control* Named(const char* name, const QString& caption = {}) {
    auto* const control = new Control(caption);
    control->setObjectName(name);
    return control;
}

// An edit field; `spoken` is what accessibility tools call it.
inline QLineEdit* Named_field(const char* name, const QString& spoken, const QString& text = {}) {
    auto* const field = Named<QLineEdit>(name, text);
    field->setAccessibleName(spoken);
    return field;
}

// A control without a caption; `spoken` is what accessibility tools call it, unless a label says
// it.
template <class Control>
Control* Captionless(const char* name, const QString& spoken = {}) {
    auto* const control = new Control;
    control->setObjectName(name);
    control->setAccessibleName(spoken);
    return control;
}

// The row of buttons with which a dialog is accepted or rejected; the first is "OkButton".
inline QDialogButtonBox* Ok_and_cancel(QDialog& dialog) {
    auto* const row = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    row->button(QDialogButtonBox::Ok)->setObjectName("OkButton");
    QObject::connect(row, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(row, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return row;
}

// For the fields of a window with an Undo of its own: as long as nothing that was typed can be
// undone (redone), the field leaves the keys for it to the window.
class LeavesUndoToWindow : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) return false;
        const auto& field = static_cast<const QLineEdit&>(*watched);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool is_left = (key.matches(QKeySequence::Undo) && !field.isUndoAvailable()) ||
                             (key.matches(QKeySequence::Redo) && !field.isRedoAvailable());
        if (is_left) event->ignore();
        return is_left;
    }
};

}  // namespace tidemark
