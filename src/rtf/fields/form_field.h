#pragma once

#include <QString>
#include <QStringList>

namespace torvik::rtf {

/// A field of a form that a reader fills in.
struct FormField {
    enum class Kind : quint8 { None, Text, CheckBox, Choice };
    Kind kind = Kind::None;
    /// What was chosen, and what is chosen before anybody does; 25 stands for nothing.
    int chosen = undecided;
    int proposed = 0;
    QString text;
    QStringList choices;

    static constexpr int undecided = 25;
    static constexpr qsizetype mostChoices = 100;

    /// What the field shows; empty where it is none.
    QString Value() const;
};

} // namespace torvik::rtf
