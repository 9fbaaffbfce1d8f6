#include "rtf/fields/field_instruction.h"

#include <QStringList>
#include <QUrl>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

/// Words and quoted texts of an instruction. In quotes a backslash takes the next character as it is.
QStringList Pieces(const QString& instruction)
{
    QStringList pieces;
    QString piece;
    bool isQuoted = false;
    bool hasPiece = false;
    for (qsizetype i = 0; i < instruction.size(); ++i) {
        const QChar c = instruction.at(i);
        if (isQuoted && c == u'\\' && i + 1 < instruction.size()) {
            piece += instruction.at(++i);
        } else if (c == u'"' || c == u'“' || c == u'”') {
            isQuoted = !isQuoted;
            hasPiece = true;
        } else if (c.isSpace() && !isQuoted) {
            if (hasPiece)
                pieces.append(piece);
            piece.clear();
            hasPiece = false;
        } else {
            piece += c;
            hasPiece = true;
        }
    }
    if (hasPiece)
        pieces.append(piece);
    return pieces;
}

void ReadLink(FieldInstruction& read)
{
    const QStringList& pieces = read.pieces;
    const QString bookmark = read.ValueOf(u"\\l"_s);
    const QString place = bookmark.isEmpty() ? QString() : u'#' + bookmark;
    const bool isLocal = pieces.size() > 1 && pieces.at(1).startsWith(u'\\');
    if (isLocal)
        read.target = place;
    else if (pieces.size() > 1)
        read.target = SafeTarget(pieces.at(1) + place);
}

void ReadSymbol(FieldInstruction& read)
{
    const QStringList& pieces = read.pieces;
    if (pieces.size() < 2)
        return;
    bool isNumber = false;
    const uint code = pieces.at(1).toUInt(&isNumber, 0);
    if (!isNumber || code == 0 || code > 0xffff || (code >= 0xd800 && code < 0xe000))
        return;
    read.symbol = code;
    read.symbolFont = read.ValueOf(u"\\f"_s);
}

} // namespace

QString SafeTarget(const QString& address)
{
    const QUrl url(address.trimmed(), QUrl::TolerantMode);
    if (!url.isValid())
        return {};
    const QString scheme = url.scheme().toLower();
    const bool isWeb = scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https");
    if (isWeb ? url.host().isEmpty() : scheme != QLatin1StringView("mailto"))
        return {};
    return url.toString(QUrl::FullyEncoded);
}

QString FieldInstruction::ValueOf(const QString& name) const
{
    const qsizetype at = pieces.indexOf(name);
    return at >= 0 && at + 1 < pieces.size() ? pieces.at(at + 1) : QString();
}

FieldInstruction ReadInstruction(const QString& instruction)
{
    FieldInstruction read;
    read.pieces = Pieces(instruction);
    if (read.pieces.isEmpty())
        return read;
    read.keyword = read.pieces.constFirst().toUpper();
    // A formula begins right behind the word.
    if (read.keyword.startsWith(QLatin1StringView("EQ\\")))
        read.keyword.truncate(2);
    else if (read.keyword.startsWith(u'='))
        read.keyword.truncate(1);
    const qsizetype start = instruction.indexOf(read.keyword, 0, Qt::CaseInsensitive);
    read.rest = start < 0 ? QString() : instruction.mid(start + read.keyword.size());
    if (read.keyword == QLatin1StringView("HYPERLINK"))
        ReadLink(read);
    else if (read.keyword == QLatin1StringView("SYMBOL"))
        ReadSymbol(read);
    return read;
}

} // namespace torvik::rtf
