#include "sample/files/dialect_writer.h"
#include "sample/files/dialects.h"
#include "sample/files/picture_bytes.h"

namespace torvik::sample {

namespace {

/// A link has its own colour.
Look LinkLook(Look look)
{
    look.underline = true;
    look.colour = {};
    return look;
}

/// The colours that the word processor always lists.
std::vector<QColor> OfficeColours()
{
    std::vector<QColor> colours;
    for (const QRgb colour : std::initializer_list<QRgb>{
             0x000000, 0x0000FF, 0x00FFFF, 0x00FF00, 0xFF00FF, 0xFF0000, 0xFFFF00, 0xFFFFFF, 0x000080,
             0x008080, 0x008000, 0x800080, 0x800000, 0x808000, 0x808080, 0xC0C0C0})
        colours.emplace_back(colour);
    return colours;
}

/// Characters that have words of their own.
const char* WordOf(QChar ch)
{
    struct Spelling {
        char16_t character;
        const char* word;
    };
    constexpr Spelling spellings[] = {
        {u'\t', "\\tab "},        {u'\n', "\\line "},    {0x00A0, "\\~"},       {0x2013, "\\endash "},
        {0x2014, "\\emdash "},    {0x2018, "\\lquote "}, {0x2019, "\\rquote "}, {0x201C, "\\ldblquote "},
        {0x201D, "\\rdblquote "}, {0x2022, "\\bullet "}};
    for (const Spelling& spelling : spellings) {
        if (spelling.character == ch.unicode())
            return spelling.word;
    }
    return nullptr;
}

} // namespace

StyledWriter::StyledWriter(const RichDocument& document) : DialectWriter(document, OfficeColours()) {}

QByteArray StyledWriter::WordFor(QChar character, int byte) const
{
    if (const char* word = WordOf(character))
        return word;
    return byte < 0 ? Word("u", static_cast<short>(character.unicode())) + "\\'3f" : QByteArray();
}

QByteArray StyledWriter::Fonts() const
{
    return "{\\fonttbl{\\f0\\froman\\fcharset0\\fprq2{\\*\\panose 02020603050405020304}Times New Roman;}"
           "{\\f1\\fswiss\\fcharset0\\fprq2{\\*\\panose 020b0604020202020204}Arial;}\r\n"
           "{\\f2\\fmodern\\fcharset0\\fprq1{\\*\\panose 02070309020205020404}Courier New;}"
           "{\\f3\\froman\\fcharset2\\fprq2{\\*\\panose 05050102010706020507}Symbol;}}";
}

QByteArray StyledWriter::StyleSheet() const
{
    return "{\\stylesheet{\\widctlpar\\adjustright \\fs22\\cgrid \\snext0 Normal;}\r\n"
           "{\\s1\\sb240\\sa60\\keepn\\widctlpar\\outlinelevel0\\adjustright \\b\\f1\\fs32\\cgrid "
           "\\sbasedon0 \\snext0 heading 1;}\r\n"
           "{\\s2\\sb240\\sa60\\keepn\\widctlpar\\outlinelevel1\\adjustright \\b\\f1\\fs24\\cgrid "
           "\\sbasedon0 \\snext0 heading 2;}\r\n"
           "{\\*\\cs10 \\additive Default Paragraph Font;}{\\*\\cs15 \\additive \\ul\\cf2 \\sbasedon10 "
           "Hyperlink;}}";
}

QByteArray StyledWriter::ListTable() const
{
    const auto level = [](const char* kind, const char* text) -> QByteArray {
        return QByteArray("{\\listlevel\\levelnfc") + kind +
               "\\leveljc0\\levelfollow0\\levelstartat1\\levelspace0\\levelindent0" + text;
    };
    QByteArray lists = "{\\*\\listtable{\\list\\listtemplateid-1\\listsimple" +
                       level("23", "{\\leveltext\\'01\\u-3913 ?;}{\\levelnumbers;}\\f3\\fbias0 "
                                   "\\fi-360\\li720\\jclisttab\\tx720 }") +
                       "{\\listname ;}" + Word("listid", ListId(0)) + '}';
    QByteArray overrides =
        "{\\*\\listoverridetable{\\listoverride" + Word("listid", ListId(0)) + "\\listoverridecount0\\ls1}";
    for (int list = 1; list <= NumberedListsIn(Document()); ++list) {
        lists +=
            "\r\n{\\list\\listtemplateid67698703\\listsimple" +
            level("0", "{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}\\fi-360\\li720\\jclisttab\\tx720 }") +
            "{\\listname ;}" + Word("listid", ListId(list)) + '}';
        overrides += "{\\listoverride" + Word("listid", ListId(list)) + "\\listoverridecount0" +
                     Word("ls", list + 1) + '}';
    }
    return lists + "}\r\n" + overrides + '}';
}

QByteArray StyledWriter::Dates() const
{
    return Word("creatim\\yr", Document().written) + "\\mo9\\dy14\\hr10\\min5}{\\version3}{\\edmins41}";
}

QByteArray StyledWriter::HeadEnd() const
{
    QByteArray end = "\\widowctrl\\ftnbj\\aenddoc\\hyphcaps0\\formshade\\viewkind4\\viewscale100\\pgbrdrhead"
                     "\\pgbrdrfoot \\fet0\\sectd \\linex0\\endnhere\\sectdefaultcl ";
    constexpr const char* kinds[] = {"\\pnucrm", "\\pnucltr", "\\pndec", "\\pnlcltr"};
    for (int i = 0; i < 4; ++i)
        end += "{\\*" + Word("pnseclvl", i + 1) + kinds[i] + "\\pnstart1\\pnindent720\\pnhang{\\pntxta .}}";
    return end + "\r\n";
}

void StyledWriter::WriteHead()
{
    out_ += "{\\rtf1\\ansi\\ansicpg1252\\uc1 \\deff0\\deflang1033\\deflangfe1033" + Fonts() + "\r\n" +
            ColourTable() + "\r\n" + StyleSheet() + "\r\n" + ListTable() + "\r\n{\\info{\\title " +
            Spelled(Document().title) + "}{\\author Brenmoor Owners' Library}{\\operator Editors}{" +
            Dates() + "}\r\n" + HeadEnd();
}

QByteArray StyledWriter::LookWords(const Look& look) const
{
    QByteArray words;
    if (look.bold)
        words += "\\b";
    if (look.italic)
        words += "\\i";
    if (look.face != Typeface::Roman)
        words += Word("f", static_cast<int>(look.face));
    if (look.halfPoints != Look().halfPoints)
        words += Word("fs", look.halfPoints);
    if (look.underline)
        words += "\\ul";
    if (look.raise != 0)
        words += look.raise > 0 ? "\\super" : "\\sub";
    if (look.colour.isValid())
        words += Word("cf", Colours().NumberOf(look.colour));
    return words;
}

QByteArray StyledWriter::WrittenRun(const Run& run) const
{
    const QByteArray words = LookWords(run.look) + RunWords();
    if (run.link.isEmpty())
        return '{' + words + (words.isEmpty() ? "" : " ") + Spelled(run.text) + '}';
    const bool isLocal = run.link.startsWith(u'#');
    const QByteArray target = (isLocal ? "\\\\l \"" : "\"") + Spelled(isLocal ? run.link.mid(1) : run.link);
    return "{\\field{\\*\\fldinst {" + words + " HYPERLINK " + target + "\" }}{\\fldrslt {\\cs15" +
           LookWords(LinkLook(run.look)) + "\\cf2" + RunWords() + ' ' + Spelled(run.text) + "}}}";
}

void StyledWriter::WriteParagraph(const Paragraph& paragraph, Stand stand)
{
    const int list = paragraph.mark == Mark::Number ? ListOf(paragraph) : 0;
    if (paragraph.mark == Mark::Bullet)
        out_ += "{\\listtext\\pard\\plain\\f3 \\loch\\af3\\dbch\\af0\\hich\\f3 \\'b7\\tab}";
    else if (paragraph.mark == Mark::Number)
        out_ += "{\\listtext\\pard\\plain\\cgrid0 \\hich\\af0\\dbch\\af0\\loch\\f0 " +
                QByteArray::number(paragraph.number) + ".\\tab}";
    out_ += "\\pard\\plain ";
    if (paragraph.heading != 0)
        out_ += Word("s", paragraph.heading) + "\\keepn";
    out_ += ParagraphWords(paragraph) + "\\widctlpar";
    if (stand != Stand::Body)
        out_ += "\\intbl";
    if (paragraph.mark == Mark::Bullet)
        out_ += "\\jclisttab{\\*\\pn \\pnlvlblt\\ilvl0\\ls1\\pnrnot0\\pnf3\\pnstart1\\pnindent360\\pnhang"
                "{\\pntxtb \\'b7}}\\ls1";
    else if (paragraph.mark == Mark::Number)
        out_ += "\\jclisttab{\\*\\pn \\pnlvlbody\\ilvl0" + Word("ls", list + 1) +
                "\\pnrnot0\\pndec\\pnstart1\\pnindent360\\pnhang{\\pntxta .}}" + Word("ls", list + 1);
    out_ += "\\adjustright \\fs22\\cgrid ";
    const QByteArray bookmark = paragraph.bookmark.toLatin1();
    if (!bookmark.isEmpty())
        out_ += "{\\*\\bkmkstart " + bookmark + '}';
    for (const Run& run : paragraph.runs)
        out_ += WrittenRun(run);
    if (!bookmark.isEmpty())
        out_ += "{\\*\\bkmkend " + bookmark + '}';
    out_ += stand == Stand::LastInCell ? "{\\cell }\r\n" : "{\\par }\r\n";
}

QByteArray StyledWriter::RowWords(const Table& table, const Row& row, bool) const
{
    QByteArray words = "\\trowd \\trgaph108" + Word("trleft", table.left);
    if (row.heading)
        words += "\\trhdr";
    return words + CellWords(table, row);
}

void StyledWriter::BeginRow(const Table& table, const Row& row, bool last)
{
    out_ += RowWords(table, row, last) + "\r\n";
}

void StyledWriter::EndRow(const Table&, const Row&, bool)
{
    out_ += "\\pard \\widctlpar\\intbl\\adjustright {\\row }\r\n";
}

void StyledWriter::WriteDrawing(const Drawing& drawing)
{
    const Paragraph around{.align = drawing.align};
    const QByteArray png = drawing.png.isEmpty() ? PngOfDrawing(drawing.image) : drawing.png;
    out_ += "\\pard\\plain " + ParagraphWords(around) + "\\widctlpar\\adjustright \\fs22\\cgrid {{\\pict" +
            Word("picscalex", 100) + Word("picscaley", 100) + "\\piccropl0\\piccropr0\\piccropt0\\piccropb0" +
            PictureExtent(drawing) + "\\pngblip" + HexLines(png) + "}}{\\par }\r\n";
}

} // namespace torvik::sample
