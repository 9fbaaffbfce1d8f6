#include "platform/paths/drives.h"
#include "program/catalogue/articles.h"
#include "program/catalogue/library.h"
#include "program/catalogue/topics.h"
#include "search/find_fixture.h"
#include "support/discs/image_maker.h"
#include "support/test_class.h"
#include "windows/find_window.h"
#include "windows/main_window.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Discs and images that change, go away, or lack articles, as Find tells of them.
class FindOnDiscsTest : public FindFixture {
    Q_OBJECT

private Q_SLOTS:
    void another_disc_is_read_anew_at_the_next_search()
    {
        Find(u"hood"_s);
        TestDisc other;
        other.AddGroup(u"67"_s, 1);
        other.AddDocument(u"books.rtf"_s, u"A book about a hood."_s);
        SetDriveOptions({{u'G', other.Folder()}});
        RefreshDrives();
        Find(u"book hood"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a [hood]."_s});
        Find(u"silver"_s);
        QCOMPARE(FirstLine(), u"Nothing found"_s);
    }

    void an_image_is_searched_and_the_next_one_of_the_same_name_as_well()
    {
        PutImageIn("A book about a hood.");
        Find(u"book"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a hood."_s});
        PutImageIn("A book about a roof.");
        Find(u"book"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a roof."_s});
    }

    void an_image_that_lost_its_end_is_searched_as_far_as_it_goes()
    {
        ImageMaker maker;
        const int texts = maker.AddFolder("RICHTEXT");
        maker.AddFile("BOOKS.RTF;1", "{\\rtf1 A book about a hood.}", texts);
        maker.AddFile("CATALOGS.RTF;1", "{\\rtf1 A catalog with a hood.}", texts);
        PutImageIn(maker.Iso().chopped(ImageMaker::block));
        Find(u"hood"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A book about a [hood]."_s});
        // 175 articles of the years, 20 of the library, the description of a topic; one could be read.
        QCOMPARE(frmFind->lblFound.Caption(),
                 u"1 found\n%1 are missing or cannot be read"_s.arg(35 * 5 + 20 + 1 - 1));
    }

    void without_a_disc_the_last_index_answers_on()
    {
        Find(u"hood"_s);
        program_->PutDiscIn({});
        Find(u"silver"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
    }

    void a_disc_that_goes_away_while_it_is_read_is_told_and_read_when_it_is_back()
    {
        for (int year = 70; year < 100; ++year) {
            for (const char* ending : {"desc.rtf", "opts.rtf", "stats.rtf", "colors.rtf"})
                program_->disc.AddDocument(QString::number(year) + QLatin1String(ending),
                                           u"much to be read\\par "_s.repeated(4000));
        }
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QVERIFY(QFile::rename(program_->disc.PathOf(u"RichText"_s), program_->disc.PathOf(u"Away"_s)));
        WaitForEnd();
        const QRegularExpression told(u"^The disc is gone: [1-9]\\d* of [1-9]\\d* were not read$"_s);
        QVERIFY2(told.match(frmFind->lblFound.Caption()).hasMatch(), qPrintable(frmFind->lblFound.Caption()));
        Find(u"glider"_s); // by its title, from the index as it is
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        QVERIFY(QFile::rename(program_->disc.PathOf(u"Away"_s), program_->disc.PathOf(u"RichText"_s)));
        Find(u"bumper"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"gone"_s));
    }

    void progress_is_shown_while_the_disc_is_read()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"much to be read\\par "_s.repeated(4000));
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QVERIFY(frmFind->ProgressGuage.Visible());
        const QRegularExpression told(u"^Reading \\d+ of [1-9]\\d*$"_s);
        QVERIFY2(told.match(frmFind->lblFound.Caption()).hasMatch(), qPrintable(frmFind->lblFound.Caption()));
        int last = 0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                last = std::max(last, frmFind->ProgressGuage.FloodPercent());
                return !frmFind->ProgressGuage.Visible();
            },
            20'000));
        QVERIFY(last > 0);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"Reading"_s));
    }

    void nothing_found_is_told_only_when_all_is_read()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"much to be read\\par "_s.repeated(4000));
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        frmFind->txtFind.SetText(u"submarine"_s);
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QStringList told;
        QVERIFY(QTest::qWaitFor(
            [&] {
                told.append(FirstLine());
                return !frmFind->ProgressGuage.Visible();
            },
            20'000));
        QVERIFY(told.size() > 1);
        QCOMPARE(told.takeLast(), u"Nothing found"_s);
        QVERIFY2(!told.contains(u"Nothing found"_s), qPrintable(told.join(u'|')));
    }

    void damaged_and_missing_articles_are_counted()
    {
        OpenForm();
        WaitForEnd();
        const int missing = 35 * 5 + 20 + 1 - 4; // of which four are there; a topic lacks one
        QCOMPARE(frmFind->lblFound.Caption(), u"%1 are missing or cannot be read"_s.arg(missing));
        program_->disc.AddFile(u"RichText/books.rtf"_s, {});
        Find(u"hood"_s);
        QCOMPARE(frmFind->lblFound.Caption(), u"2 found\n%1 are missing or cannot be read"_s.arg(missing));
    }

    void one_missing_article_is_told_as_one()
    {
        AddAllArticles();
        program_->disc.Remove(u"RichText/68desc.rtf"_s);
        OpenForm();
        WaitForEnd();
        QCOMPARE(frmFind->lblFound.Caption(), u"1 is missing or cannot be read"_s);
    }

private:
    /// Everything that a button or menu entry asks for, as far as the disc lacks it.
    void AddAllArticles()
    {
        const auto add = [this](const QString& file) {
            const QString relative = QString(file).remove(0, 1).replace(u'\\', u'/');
            if (!QFile::exists(program_->disc.PathOf(relative)))
                program_->disc.AddDocument(relative.section(u'/', -1), u"A word."_s);
        };
        for (int button = 1; button <= yearCount; ++button) {
            const QString year = YearOfButton(button);
            for (const ArticleButton each : {ArticleButton::Description, ArticleButton::Options,
                                             ArticleButton::Statistics, ArticleButton::Colors})
                add(ArticleOf(each, year).file);
            add(NostalgiaOf(year).file);
        }
        for (const Topic& topic : Topics()) {
            for (const ArticleButton each : {ArticleButton::Description, ArticleButton::Options,
                                             ArticleButton::Statistics, ArticleButton::Colors}) {
                if (AsksForArticle(each, topic))
                    add(ArticleOf(each, QString::fromLatin1(topic.title)).file);
            }
        }
        for (const LibraryDocument& document : LibraryDocuments())
            add(QLatin1String(document.file));
    }

    /// Puts an image in the drive, the only document of which holds a text.
    void PutImageIn(const char* text)
    {
        ImageMaker maker;
        maker.AddFile("BOOKS.RTF;1", "{\\rtf1 " + QByteArray(text) + "}", maker.AddFolder("RICHTEXT"));
        PutImageIn(maker.Iso());
    }
    void PutImageIn(const QByteArray& image)
    {
        QFile::remove(program_->InProgramFolder(u"disc.iso"_s));
        program_->AddToProgramFolder(u"disc.iso"_s, image);
        SetDriveOptions({{u'G', program_->InProgramFolder(u"disc.iso"_s)}});
    }
};

TORVIK_TEST(FindOnDiscsTest)
#include "find_on_discs_test.moc"
