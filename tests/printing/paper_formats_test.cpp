#include "printing/paper_formats.h"
#include "support/test_class.h"

#include <QPen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr double scale = 6.25;

QTextCharFormat FormatOf(const QString& family)
{
    QTextCharFormat format;
    format.setFontFamilies({family});
    return format;
}

QStringList FamiliesAt(const QTextDocument& text, int position)
{
    QTextCursor cursor(const_cast<QTextDocument*>(&text));
    cursor.setPosition(position + 1); // the format before the cursor
    return cursor.charFormat().fontFamilies().toStringList();
}

} // namespace

/// What changes in a document's formats on their way to paper.
class PaperFormatsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_face_of_a_text_gets_its_font_for_paper()
    {
        QTextDocument text;
        QTextCursor cursor(&text);
        QTextCharFormat bold = FormatOf(u"Liberation Serif"_s);
        bold.setFontWeight(QFont::Bold);
        cursor.insertText(u"one"_s, FormatOf(u"Liberation Serif"_s));
        cursor.insertText(u"two"_s, bold);
        BringFormatsToPaper(text, scale);
        QCOMPARE(FamiliesAt(text, 0).size(), 2);
        QCOMPARE(FamiliesAt(text, 0).last(), u"Liberation Serif"_s);
        QCOMPARE(FamiliesAt(text, 3).last(), u"Liberation Serif"_s);
        QVERIFY(FamiliesAt(text, 0).first() != FamiliesAt(text, 3).first());
        QCOMPARE(text.toPlainText(), u"onetwo"_s);
        cursor.setPosition(6);
        QCOMPARE(cursor.charFormat().fontWeight(), int{QFont::Bold});
    }

    void a_text_in_another_script_keeps_its_font()
    {
        QTextDocument text;
        QTextCursor(&text).insertText(u"\u05E9\u05DC\u05D5\u05DD"_s, FormatOf(u"Liberation Serif"_s));
        BringFormatsToPaper(text, scale);
        QCOMPARE(FamiliesAt(text, 0), QStringList(u"Liberation Serif"_s));
    }

    void the_number_of_an_item_has_the_font_of_its_text()
    {
        QTextDocument text;
        QTextCursor cursor(&text);
        cursor.setBlockCharFormat(FormatOf(u"Liberation Serif"_s));
        cursor.insertText(u"item"_s, FormatOf(u"Liberation Serif"_s));
        cursor.createList(QTextListFormat::ListDecimal);
        BringFormatsToPaper(text, scale);
        QCOMPARE(text.begin().charFormat().fontFamilies().toStringList(), FamiliesAt(text, 0));
    }

    void indents_grow_with_the_paper_and_the_layout_does_it_for_the_space_between_letters()
    {
        QTextDocument text;
        QTextCursor cursor(&text);
        QTextBlockFormat block;
        block.setLeftMargin(10);
        block.setRightMargin(20);
        block.setTextIndent(-4);
        cursor.setBlockFormat(block);
        QTextCharFormat spaced = FormatOf(u"Liberation Sans"_s);
        spaced.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        spaced.setFontLetterSpacing(2);
        cursor.insertText(u"spaced"_s, spaced);
        BringFormatsToPaper(text, scale);
        const QTextBlockFormat scaled = text.begin().blockFormat();
        QCOMPARE(scaled.leftMargin(), 10 * scale);
        QCOMPARE(scaled.rightMargin(), 20 * scale);
        QCOMPARE(scaled.textIndent(), -4 * scale);
        cursor.setPosition(3);
        QCOMPARE(cursor.charFormat().fontLetterSpacing(), 2.0);
    }

    void the_line_around_outlined_letters_grows_with_the_paper()
    {
        QTextDocument text;
        QTextCharFormat outlined = FormatOf(u"Liberation Sans"_s);
        outlined.setTextOutline(QPen(QColor(Qt::red), 0.5));
        QTextCursor(&text).insertText(u"outlined"_s, outlined);
        BringFormatsToPaper(text, scale);
        QTextCursor cursor(&text);
        cursor.setPosition(3);
        QCOMPARE(cursor.charFormat().textOutline().widthF(), 0.5 * scale);
        QCOMPARE(cursor.charFormat().textOutline().color(), QColor(Qt::red));
    }

    void letters_are_not_hinted_and_pixels_become_points()
    {
        QTextDocument text;
        QFont font(QStringList{u"Liberation Sans"_s});
        font.setPixelSize(16);
        text.setDefaultFont(font);
        BringFormatsToPaper(text, scale);
        QCOMPARE(text.defaultFont().hintingPreference(), QFont::PreferNoHinting);
        QCOMPARE(text.defaultFont().pointSizeF(), 12.0);
    }
};

TORVIK_TEST(PaperFormatsTest)
#include "paper_formats_test.moc"
