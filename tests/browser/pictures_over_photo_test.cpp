#include "browser/pictures_over_photo.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString harwell = u"The Classic Harwell "_s;
const QString prototypes = u"Early Torvik Prototypes "_s;

} // namespace

/// Emblem, script and clip art: which file is theirs and where they lie over the photo.
class PicturesOverPhotoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_file_follows_from_the_title_data()
    {
        QTest::addColumn<QString>("pane");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("file"); // as it is written on the disc
        const auto row = [](const char* name, const char* pane, const QString& title, const char* file) {
            QTest::newRow(name) << QString::fromLatin1(pane) << title << QString::fromLatin1(file);
        };
        row("emblem of a year", "picEmblem", u"1969"_s, "emblems/emb69.jpg");
        row("emblem of 2001", "picEmblem", u"2001"_s, "emblems/emb01.jpg");
        row("emblem of the Harwell", "picEmblem", harwell, "emblems/embsb.jpg");
        row("emblem of the prototypes", "picEmblem", prototypes, "emblems/EMBpt.jpg");
        row("emblem of another topic", "picEmblem", u"Torvik Metal Signs "_s, "emblems/embrv.jpg");
        row("emblem in another letter case", "picEmblem", u"1969"_s, "EMBLEMS/EMB69.JPG");
        row("script of a year", "picScript", u"1969"_s, "scripts/scri69.jpg");
        row("script of 2001", "picScript", u"2001"_s, "scripts/scri01.jpg");
        row("script of the Harwell", "picScript", harwell, "SCRIPTS/SCRISB.jpg");
        row("script of the prototypes", "picScript", prototypes, "SCRIPTS/SCRIpt.jpg");
        row("script in another letter case", "picScript", harwell, "scripts/scrisb.jpg");
        row("clip art of a year", "picClipArt", u"1969"_s, "ClipArt/69clip.jpg");
        row("clip art of 2001", "picClipArt", u"2001"_s, "ClipArt/01clip.jpg");
        row("clip art of the Harwell", "picClipArt", harwell, "clipart/e clip.jpg");
    }

    void the_file_follows_from_the_title()
    {
        QFETCH(QString, pane);
        QFETCH(QString, title);
        QFETCH(QString, file);
        program_->disc.AddFile(file, TestDisc::Jpeg(Qt::blue, {90, 30}));
        SetTitle(title);
        PictureBox& picture = PaneOf(pane);
        picture.Show();
        Load(pane);
        QCOMPARE(program_->messages.Count(), 0);
        QVERIFY(picture.Visible());
        QCOMPARE(picture.Picture().FileName().toLower(), file.section(u'/', 1).toLower());
        QCOMPARE(picture.Width(), 90.0);
        QCOMPARE(picture.Height(), 30.0);
    }

    void clip_art_goes_by_the_year_code_and_not_by_the_title()
    {
        program_->disc.AddFile(u"ClipArt/A1clip.jpg"_s, TestDisc::Jpeg(Qt::blue, {90, 30}));
        SetTitle(u"1969"_s);
        state.YearCode = u"A1"_s;
        LoadClipArt();
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(Form1->picClipArt.Picture().FileName(), u"A1clip.jpg"_s);
    }

    void each_has_its_place_at_the_edges_of_the_photo_data()
    {
        QTest::addColumn<QSize>("screen");
        for (const QSize& screen : {QSize(640, 480), QSize(800, 600), QSize(1024, 768), QSize(1920, 1080)})
            QTest::addRow("%d by %d", screen.width(), screen.height()) << screen;
    }

    void each_has_its_place_at_the_edges_of_the_photo()
    {
        QFETCH(QSize, screen);
        program_.reset();
        program_ = std::make_unique<Program>();
        program_->SetScreen(screen);
        program_->disc.AddGroup(u"67"_s, 1);
        AddPictures(u"67"_s, {160, 90});
        program_->StartBrowsing();
        LoadEmblem();
        LoadScript();
        LoadClipArt();
        const Form1Controls& form = *Form1;
        QCOMPARE(form.picEmblem.Top(), form.Frame1.Top() - 90 - 1);
        QCOMPARE(form.picEmblem.Left(), form.Image4.Width() - 160 + 9);
        QCOMPARE(form.picScript.Top(), form.Image4.Top() + 25);
        QCOMPARE(form.picScript.Left(), form.Image4.Left() + 1);
        QCOMPARE(form.picClipArt.Top(), form.Image4.Top());
        QCOMPARE(form.picClipArt.Left(), form.Image4.Width() - 160 + 6);
        // The same in pixels of the design: the photo is 776 by 470 from 8, 24; the year bar begins at 504.
        QCOMPARE(form.picEmblem.Widget().geometry(), QRect(625, 413, 160, 90));
        QCOMPARE(form.picScript.Widget().geometry(), QRect(9, 49, 160, 90));
        QCOMPARE(form.picClipArt.Widget().geometry(), QRect(622, 24, 160, 90));
    }

    void emblem_and_script_come_up_in_front_and_clip_art_stays_hidden()
    {
        AddPictures(u"67"_s, {160, 90});
        Form1->rtbDetails.Show();
        Form1->rtbDetails.ZOrder();
        LoadEmblem();
        QVERIFY(Form1->picEmblem.Visible());
        QCOMPARE(Frontmost(), u"picEmblem"_s);
        LoadScript();
        QVERIFY(Form1->picScript.Visible());
        QCOMPARE(Frontmost(), u"picScript"_s);
        LoadClipArt();
        QVERIFY(!Form1->picClipArt.Visible());
        QCOMPARE(Frontmost(), u"picScript"_s);
    }

    void a_failure_is_reported_and_hides_emblem_and_script_data()
    {
        QTest::addColumn<QString>("pane");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content"); // null: no file
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("visible");
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {90, 30});
        const std::pair<const char*, QByteArray> contents[] = {{"missing", {}},
                                                               {"no picture", "text"},
                                                               {"empty", ""},
                                                               {"cut off", whole.left(whole.size() / 2)}};
        for (const auto& [what, content] : contents) {
            QTest::addRow("emblem %s", what)
                << u"picEmblem"_s << u"emblems/emb69.jpg"_s << content << u"ER022"_s << false;
            QTest::addRow("script %s", what)
                << u"picScript"_s << u"scripts/scri69.jpg"_s << content << u"ER021"_s << false;
            QTest::addRow("clip art %s", what)
                << u"picClipArt"_s << u"ClipArt/69clip.jpg"_s << content << u"ER024"_s << true;
        }
    }

    void a_failure_is_reported_and_hides_emblem_and_script()
    {
        QFETCH(QString, pane);
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, code);
        QFETCH(bool, visible);
        AddPictures(u"67"_s, {50, 20});
        Load(pane);
        PictureBox& picture = PaneOf(pane);
        picture.Show();
        const QString before = picture.Picture().FileName();
        SetTitle(u"1969"_s);
        if (!content.isNull())
            program_->disc.AddFile(file, content);
        Load(pane);
        QCOMPARE(state.ErrorCode, code);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: "_s + code));
        QCOMPARE(picture.Visible(), visible);
        QCOMPARE(picture.Picture().FileName(), before);
    }

    void a_loader_leaves_its_code_in_the_record()
    {
        AddPictures(u"67"_s, {50, 20});
        LoadEmblem();
        QCOMPARE(state.ErrorCode, u"ER022"_s);
        LoadScript();
        QCOMPARE(state.ErrorCode, u"ER021"_s);
        LoadClipArt();
        QCOMPARE(state.ErrorCode, u"ER024"_s);
    }

private:
    void SetTitle(const QString& title)
    {
        Form1->panYear.SetCaption(title);
        state.YearCode = title.mid(2, 2);
    }
    void AddPictures(const QString& year, const QSize& size)
    {
        for (const QString& file : {u"emblems/emb%1.jpg"_s, u"scripts/scri%1.jpg"_s, u"ClipArt/%1clip.jpg"_s})
            program_->disc.AddFile(file.arg(year), TestDisc::Jpeg(Qt::blue, size));
    }
    static PictureBox& PaneOf(const QString& name)
    {
        if (name == u"picEmblem"_s)
            return Form1->picEmblem;
        return name == u"picScript"_s ? Form1->picScript : Form1->picClipArt;
    }
    static void Load(const QString& pane)
    {
        if (pane == u"picEmblem"_s)
            LoadEmblem();
        else if (pane == u"picScript"_s)
            LoadScript();
        else
            LoadClipArt();
    }
    /// The control that lies in front of all others of the form.
    static QString Frontmost() { return Form1->Host().children().last()->objectName(); }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PicturesOverPhotoTest)
#include "pictures_over_photo_test.moc"
