#include "sample/files/rtf_writer.h"

namespace torvik::sample {

QByteArray RtfEscaped(const QString& text)
{
    QByteArray escaped;
    for (const QChar ch : text) {
        const ushort code = ch.unicode();
        if (code == '\\' || code == '{' || code == '}')
            escaped += '\\';
        if (code < 0x80)
            escaped += static_cast<char>(code);
        else if (code < 0x100)
            escaped += "\\'" + QByteArray::number(code, 16);
        else
            escaped += "\\u" + QByteArray::number(static_cast<short>(code)) + "?";
    }
    return escaped;
}

QByteArray ShortDocument(const QString& heading, const QString& text)
{
    return QByteArrayLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
                             "{\\f1\\froman\\fcharset0 Times New Roman;}}\r\n"
                             "{\\colortbl ;\\red128\\green0\\blue0;}\r\n\\pard\\f1\\fs22\\cf1\\b ") +
           RtfEscaped(heading) + "\\b0\\cf0\\par\r\n\\f0\\fs18 " + RtfEscaped(text) + "\\par\r\n}\r\n";
}

} // namespace torvik::sample
