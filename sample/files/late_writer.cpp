#include "sample/files/dialect_writer.h"
#include "sample/files/dialects.h"
#include "sample/files/picture_bytes.h"
#include "sample/files/rich_document.h"

#include <QCryptographicHash>

namespace torvik::sample {

namespace {

/// A number of the text that is the same in every run.
int NumberOfText(const QByteArray& text)
{
    const QByteArray digest = QCryptographicHash::hash(text, QCryptographicHash::Md5).left(3);
    return digest.toHex().toInt(nullptr, 16);
}

} // namespace

LateWriter::LateWriter(const RichDocument& document)
    : StyledWriter(document), revision_(NumberOfText(document.title.toUtf8()))
{}

QByteArray LateWriter::WordFor(QChar character, int byte) const
{
    if (character.unicode() < 0x80)
        return StyledWriter::WordFor(character, byte);
    if (character.unicode() < 0x100 && byte >= 0)
        return {};
    const QByteArray fallback = byte < 0 ? QByteArray("3f") : QByteArray::number(byte, 16);
    return Word("u", static_cast<short>(character.unicode())) + "\\'" + fallback;
}

QByteArray LateWriter::CellFlow(int width) const
{
    return "\\cltxlrtb\\clftsWidth3" + Word("clwWidth", width);
}

QByteArray LateWriter::RunWords() const
{
    return Word("insrsid", revision_);
}

void LateWriter::WriteHead()
{
    out_ +=
        "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\stshfdbch0\\stshfloch0\\stshfhich0\\stshfbi0\\deflang1033"
        "\\deflangfe1033" +
        Fonts() + "\r\n" + ColourTable() + "\r\n" + StyleSheet() + "\r\n" + ListTable() +
        "\r\n{\\*\\rsidtbl \\rsid" + QByteArray::number(revision_ / 2) + Word("rsid", revision_) +
        "}\r\n{\\info{\\title " + Spelled(Document().title) +
        "}{\\author Brenmoor Owners' Library}{\\operator Editors}{" + Dates() +
        "}\r\n\\widowctrl\\ftnbj\\aenddoc\\noxlattoyen\\expshrtn\\noultrlspc\\dntblnsbdb\\nospaceforul\\forms"
        "hade"
        "\\viewkind4\\viewscale100\\nolnhtadjtbl" +
        Word("rsidroot", revision_) + " \\fet0\\sectd \\linex0\\endnhere\\sectlinegrid360\\sectdefaultcl\r\n";
}

QByteArray LateWriter::CellShade(const Cell& cell) const
{
    if (!cell.shade.isValid())
        return "\\clshdrawnil";
    return Word("clcbpat", Colours().NumberOf(cell.shade)) +
           Word("clcbpatraw", Colours().NumberOf(cell.shade));
}

QByteArray LateWriter::RowWords(const Table& table, const Row& row, bool last) const
{
    QByteArray words = "\\trowd \\irow0\\irowband0";
    if (last)
        words += "\\lastrow";
    words += "\\ts11\\trgaph108" + Word("trleft", table.left);
    if (row.heading)
        words += "\\trhdr";
    words += "\\trftsWidth1\\trftsWidthB3\\trautofit1\\trpaddl108\\trpaddr108\\trpaddfl3\\trpaddfr3";
    return words + CellWords(table, row);
}

void LateWriter::EndRow(const Table& table, const Row& row, bool last)
{
    out_ += "\\pard \\widctlpar\\intbl\\adjustright {" + RunWords() + ' ' + RowWords(table, row, last) +
            "\\row }\r\n";
    if (last)
        out_ += "\\pard \\widctlpar\\adjustright ";
}

void LateWriter::WriteDrawing(const Drawing& drawing)
{
    const Paragraph around{.align = drawing.align};
    const QByteArray png = PngOfDrawing(drawing.image);
    const QByteArray metafile = MetafileOfDrawing(drawing.image);
    const QByteArray digest = QCryptographicHash::hash(png, QCryptographicHash::Md5).toHex();
    const QByteArray size = PictureExtent(drawing);
    const QByteArray tag = Word("bliptag", digest.left(7).toInt(nullptr, 16));
    out_ += "\\pard\\plain " + ParagraphWords(around) +
            "\\widctlpar\\adjustright \\fs22\\cgrid {{\\*\\shppict{\\pict{\\*\\picprop\\shplid1025{\\sp{\\sn "
            "shapeType}"
            "{\\sv 75}}}\\picscalex100\\picscaley100\\piccropl0\\piccropr0\\piccropt0\\piccropb0" +
            size + "\\pngblip" + tag + "{\\*\\blipuid " + digest + '}' + HexLines(png) +
            "}}{\\nonshppict{\\pict\\picscalex100\\picscaley100\\piccropl0\\piccropr0\\piccropt0\\piccropb0" +
            size + "\\wmetafile8" + tag + "\\blipupi96{\\*\\blipuid " + digest + '}' + HexLines(metafile) +
            "}}}{\\par }\r\n";
}

QByteArray WriteRichText(const RichDocument& document)
{
    switch (document.dialect) {
    case Dialect::Bare:
        return BareWriter(document).Write();
    case Dialect::Styled:
        return StyledWriter(document).Write();
    case Dialect::Late:
        break;
    }
    return LateWriter(document).Write();
}

} // namespace torvik::sample
