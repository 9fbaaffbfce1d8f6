#include "rtf/documents.h"
#include "rtf/picture_bytes.h"
#include "support/test_class.h"

using namespace torvik::rtf;

/// Documents of three dialects, cut at every byte.
class TruncationTest : public QObject {
    Q_OBJECT

    static QByteArray SimpleEditor()
    {
        return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fnil\\fcharset0 "
               "Arial;}{\\f1\\fnil\\fcharset2 Symbol;}}\r\n"
               "{\\colortbl ;\\red255\\green0\\blue0;}\r\n\\viewkind4\\uc1\\pard\\cf1\\b\\f0\\fs24 "
               "Caf\\'e9\\cf0\\b0\\par\r\n"
               "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-"
               "720\\li720 one\\par\r\n{\\pntext\\f1\\'B7\\tab}two\\par\r\n"
               "\\pard{\\object\\objemb{\\*\\objclass Picture}{\\*\\objdata 0105}{\\result "
               "{\\pict\\wmetafile8\\picw100\\pich100\\picwgoal300\\pichgoal300 " +
               Wmf(10, 10, WmfRecord(0x041b, Bytes().Words({9, 9, 1, 1}).Data())).toHex('\n') +
               "}}}\\par\r\n}\r\n";
    }
    static QByteArray WordProcessor()
    {
        return "{\\rtf1\\ansi\\ansicpg1252\\uc1 "
               "\\deff0\\deflang1033{\\fonttbl{\\f0\\froman\\fcharset0\\fprq2{\\*\\panose 02020603}Times New "
               "Roman;}"
               "{\\f3\\froman\\fcharset2\\fprq2 "
               "Symbol;}}{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}{\\stylesheet{"
               "\\widctlpar \\fs20 \\snext0 Normal;}"
               "{\\s1\\keepn \\b\\fs28 \\sbasedon0 heading "
               "1;}}{\\*\\listtable{\\list\\listtemplateid-1{\\listlevel\\levelnfc0\\levelstartat1{"
               "\\leveltext\\'02\\'00.;}"
               "{\\levelnumbers\\'01;}\\fi-360\\li720}{\\listname "
               ";}\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}}"
               "{\\info{\\title T}}\\sectd {\\header\\pard head\\par}\\pard\\plain \\s1\\keepn \\b\\fs28 "
               "Title{\\fs16\\super \\chftn {\\footnote \\pard {\\super \\chftn} note}}\\par "
               "{\\listtext\\pard\\plain 1.\\tab}\\pard\\plain \\fi-360\\li720\\ls1\\ilvl0\\fs20 first "
               "\\endash  {\\field{\\*\\fldinst HYPERLINK \"http://a.example/\"}"
               "{\\fldrslt {\\ul\\cf2 link}}}\\par \\trowd \\trgaph108\\trleft-108 \\clbrdrt\\brdrs\\brdrw10 "
               "\\cellx2000\\clmgf\\cellx3000\\clmrg\\cellx4000 \\pard \\intbl a\\cell b\\cell\\cell "
               "\\pard \\intbl \\row \\pard {\\pict\\pngblip 8950}{\\upr{\\*\\x a}{\\*\\ud{\\*\\x "
               "b}}}end\\par }";
    }
    static QByteArray LaterWordProcessor()
    {
        return "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc2\\adeff0\\deff0\\stshfdbch0{\\fonttbl{"
               "\\f0\\froman\\fcharset0\\fprq2 Times New Roman{\\*\\falt Times};}"
               "{\\f11\\fmodern\\fcharset128\\fprq1 {\\*\\falt \\'82\\'6c\\'82\\'72}MS "
               "Mincho;}}{\\*\\rsidtbl \\rsid1}{\\*\\generator G;}\\pard\\plain \\ltrpar\\ql \\li0\\itap0 "
               "\\rtlch\\fcs1 \\af0\\afs24 \\ltrch\\fcs0 \\fs24 {\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 "
               "\\insrsid1 Text \\u8364\\'80\\'80 \\loch\\af11\\hich\\dbch\\f11 \\'93\\'fa}"
               "{\\*\\shppict{\\pict{\\*\\picprop\\shplid1{\\sp{\\sn x}{\\sv "
               "1}}}"
               "\\picscalex50\\picscaley50\\piccropl10\\picw53\\pich53\\picwgoal300\\pichgoal300\\dibitmap0 "
               "{\\*\\blipuid 0011}" +
               FourColors().toHex() +
               "}}{\\nonshppict{\\pict\\wmetafile8 0100}}\\par \\trowd "
               "\\irow0\\ts11\\trgaph108\\clvmgf\\clvertalc\\clbrdrt\\brdrtbl "
               "\\clcbpat2\\cltxlrtb\\clftsWidth3\\cellx4000 "
               "\\pard \\intbl outer\\par \\pard \\intbl\\itap2 inner\\nestcell {\\nonesttables\\par "
               "}{\\*\\nesttableprops\\trowd \\cellx2000\\nestrow}\\pard \\intbl\\itap1 \\cell \\row "
               "\\pard \\itap0 {\\*\\bkmkstart b}{\\*\\bkmkend b}{\\shp{\\*\\shpinst\\shpleft0{\\sp{\\sn "
               "a}{\\sv 1}}{\\shptxt boxed\\par}}{\\shprslt x}}\\bin3 }}}end\\par }";
    }

private Q_SLOTS:
    void every_cut_opens_and_keeps_what_came_before_data()
    {
        QTest::addColumn<QByteArray>("whole");
        QTest::newRow("simple editor") << SimpleEditor();
        QTest::newRow("word processor") << WordProcessor();
        QTest::newRow("later word processor") << LaterWordProcessor();
    }
    void every_cut_opens_and_keeps_what_came_before()
    {
        QFETCH(QByteArray, whole);
        const Reading all = ReadBytes(whole);
        QVERIFY(!all.result.wasDamaged);
        QCOMPARE(all.result.pictures, whole.contains("pngblip 8950") ? 0 : 1);
        const QString first = all.Text().left(3);
        qsizetype longest = 0;
        for (qsizetype length = 0; length < whole.size(); ++length) {
            const Reading cut = ReadBytes(whole.left(length));
            if (cut.result.wasRtf && length > 6)
                QVERIFY(cut.result.wasDamaged || whole.at(length) == '\r' || whole.at(length) == '\n');
            longest = std::max(longest, cut.Text().size());
            if (length > whole.size() - 10)
                QVERIFY(cut.Text().startsWith(first));
        }
        QVERIFY(longest >= all.Text().size() - 4);
    }
};

TORVIK_TEST(TruncationTest)
#include "truncation_test.moc"
