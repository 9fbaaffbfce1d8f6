#include "sample/files/dialect_writer.h"
#include "sample/files/dialects.h"
#include "sample/files/picture_bytes.h"

namespace torvik::sample {

namespace {

void Switch(QByteArray& words, const char* name, bool before, bool now)
{
    if (before != now)
        words += QByteArray("\\") + name + (now ? "" : "0");
}

} // namespace

BareWriter::BareWriter(const RichDocument& document) : DialectWriter(document, {}) {}

void BareWriter::WriteHead()
{
    out_ +=
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720"
        "{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 Times New Roman;}{\\f1\\fswiss\\fprq2\\fcharset0 Arial;}"
        "{\\f2\\fmodern\\fprq1\\fcharset0 Courier New;}{\\f3\\froman\\fprq2\\fcharset2 Symbol;}}\r\n" +
        ColourTable() + "\r\n\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs22 ";
    current_ = Look();
}

void BareWriter::WriteParagraph(const Paragraph& paragraph, Stand stand)
{
    const bool listGoesOn = paragraph.mark != Mark::None && paragraph.mark == openList_ &&
                            (paragraph.mark == Mark::Bullet || paragraph.number > 1);
    QByteArray mark;
    if (paragraph.mark == Mark::Bullet)
        mark = "{\\pntext\\f3\\'B7\\tab}";
    else if (paragraph.mark == Mark::Number)
        mark = "{\\pntext\\f0 " + QByteArray::number(paragraph.number) + ".\\tab}";
    if (!listGoesOn) {
        out_ += "\\pard";
        if (stand != Stand::Body)
            out_ += "\\intbl";
        out_ += mark;
        if (paragraph.mark == Mark::Bullet)
            out_ += "{\\*\\pn\\pnlvlblt\\pnf3\\pnindent0{\\pntxtb\\'B7}}";
        else if (paragraph.mark == Mark::Number)
            out_ += "{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pndec{\\pntxta.}}";
        const QByteArray words = ParagraphWords(paragraph);
        // Words of a border end with their own blank; a second one would be text.
        out_ += words;
        if (!words.endsWith(' '))
            out_ += ' ';
    } else {
        out_ += mark;
    }
    for (const Run& run : paragraph.runs)
        WriteRun(run);
    out_ += stand == Stand::LastInCell ? "\\cell\r\n" : "\\par\r\n";
    openList_ = stand == Stand::LastInCell ? Mark::None : paragraph.mark;
}

void BareWriter::WriteRun(const Run& run)
{
    QByteArray words;
    Look look = run.look;
    if (!run.link.isEmpty())
        look.underline = true;
    Switch(words, "b", current_.bold, look.bold);
    Switch(words, "i", current_.italic, look.italic);
    if (current_.underline != look.underline)
        words += look.underline ? "\\ul" : "\\ulnone";
    if (current_.raise != look.raise)
        words += look.raise > 0 ? "\\super" : look.raise < 0 ? "\\sub" : "\\nosupersub";
    if (current_.face != look.face)
        words += Word("f", static_cast<int>(look.face));
    if (current_.halfPoints != look.halfPoints)
        words += Word("fs", look.halfPoints);
    if (current_.colour != look.colour)
        words += Word("cf", Colours().NumberOf(look.colour));
    if (!words.isEmpty())
        out_ += words + ' ';
    current_ = look;
    out_ += Spelled(run.text);
}

void BareWriter::BeginRow(const Table& table, const Row& row, bool)
{
    out_ += "\\trowd\\trgaph70" + Word("trleft", table.left) + CellWords(table, row) + "\r\n";
}

void BareWriter::EndRow(const Table&, const Row&, bool)
{
    out_ += "\\row\r\n";
}

void BareWriter::WriteDrawing(const Drawing& drawing)
{
    const Paragraph around{.align = drawing.align};
    out_ += "\\pard" + ParagraphWords(around) + " {\\pict";
    // The editor kept what was pasted: sometimes a bitmap, sometimes a metafile around one.
    if (Document().written % 2 != 0) {
        const int lineBytes = (drawing.image.width() + 7) / 8 * 4;
        out_ += Word("dibitmap", 0) + Word("wbmbitspixel", 4) + Word("wbmplanes", 1) +
                Word("wbmwidthbytes", lineBytes) + Word("picw", drawing.image.width()) +
                Word("pich", drawing.image.height()) + Word("picwgoal", drawing.width) +
                Word("pichgoal", drawing.height) + ' ' + HexLines(DibOfDrawing(drawing.image));
    } else {
        out_ +=
            Word("wmetafile", 8) + PictureExtent(drawing) + ' ' + HexLines(MetafileOfDrawing(drawing.image));
    }
    out_ += "}\\par\r\n";
    openList_ = Mark::None;
}

QByteArray BareWriter::WordFor(QChar character, int byte) const
{
    if (character == u'\t')
        return "\\tab ";
    if (character == u'\n')
        return "\\line ";
    return byte < 0 ? Word("u", static_cast<short>(character.unicode())) + '?' : QByteArray();
}

void BareWriter::WriteTail()
{
    out_ += "\\pard\\par\r\n}\r\n";
    out_ += '\0'; // the editor ends its files as it ends its strings
}

} // namespace torvik::sample
