// Making controls that carry their own names.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
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
