#pragma once

#include "rtf/rtf_reader.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace torvik::rtf {

/// A document with fonts and colours of its own around a body: f0 serif, f1 sans, f2 symbols, f3 Cyrillic, f4
/// Japanese, f5 ornaments; colours 1 red, 2 green, 3 blue, 4 yellow.
inline QByteArray Wrapped(const QByteArray& body)
{
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\froman\\fcharset0 Times New Roman;}"
           "{\\f1\\fswiss\\fcharset0 Arial;}{\\f2\\fnil\\fcharset2 Symbol;}{\\f3\\fswiss\\fcharset204 Arial "
           "CYR;}"
           "{\\f4\\fnil\\fcharset128 MS Mincho;}{\\f5\\fnil\\fcharset2 Wingdings;}}"
           "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue0;\\red0\\green0\\blue255;"
           "\\red255\\green255\\blue0;}\\uc1 " +
           body + "}";
}

struct Reading {
    std::unique_ptr<QTextDocument> document = std::make_unique<QTextDocument>();
    ReadResult result;

    QString Text() const { return document->toPlainText(); }
    /// The first block that contains a text; an invalid one where none does.
    QTextBlock Block(const QString& text) const
    {
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
            if (block.text().contains(text))
                return block;
        }
        return {};
    }
    /// The format of a text's last character.
    QTextCharFormat Format(const QString& text) const
    {
        return document->find(text, 0, QTextDocument::FindCaseSensitively).charFormat();
    }
};

inline Reading ReadBytes(const QByteArray& bytes)
{
    Reading reading;
    reading.result = ReadRichText(bytes, *reading.document);
    return reading;
}

inline Reading ReadBody(const QByteArray& body)
{
    return ReadBytes(Wrapped(body));
}

} // namespace torvik::rtf
