// Making controls that carry their own names.
#pragma once

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

}  // namespace tidemark
