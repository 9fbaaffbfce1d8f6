#pragma once

#include <QString>
#include <QStringList>

namespace torvik::rtf {

/// What the instruction of a field asks for, as far as it means anything on a page.
struct FieldInstruction {
    /// Where a link leads: a web or mail address, or "#name" for a bookmark of the document; empty for no
    /// link.
    QString target;
    /// For a field that is one character of a font; 0 for none.
    char32_t symbol = 0;
    QString symbolFont;
    /// The first word in capitals, all words and quoted texts, and everything after the first word as it
    /// stands.
    QString keyword;
    QStringList pieces;
    QString rest;

    /// The piece after a switch such as \l; empty when the switch is not there.
    QString ValueOf(const QString& name) const;
};

/// Reads an instruction such as `HYPERLINK "http://www.example" \o "tip"` or `SYMBOL 183 \f "Symbol"`.
FieldInstruction ReadInstruction(const QString& instruction);

/// The address when it may be followed: http, https and mailto only. Empty otherwise.
QString SafeTarget(const QString& address);

} // namespace torvik::rtf
