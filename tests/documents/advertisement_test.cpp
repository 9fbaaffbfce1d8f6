#include "program/program_state.h"
#include "support/discs/picture_bytes.h"
#include "support/modal_visit.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/page_window.h"
#include "windows/play_list_window.h"

#include <QDir>
#include <QImage>
#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString sorry = u"Sorry!\r\n\r\nThe Year 2001 ad has not yet been released by Brenmoor.\r\n"_s;

} // namespace

/// The advertisement of the year on show.
class AdvertisementTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "69", "87", "A1"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        AddPage(u"69brto00.jpg"_s, {1240, 1610});
        program_->StartBrowsing();
        program_->Click(Form1->cmdYR(3));
    }
    void cleanup() { program_.reset(); }

    void the_page_opens_at_full_size_with_both_bars()
    {
        bool allVisible = false;
        double pageWidth = 0;
        int across = 0;
        QString caption;
        Visit([&] {
            allVisible = frmScroll->HScroll1.Visible() && frmScroll->VScroll1.Visible() &&
                         frmScroll->picParent.Visible() && frmScroll->picChild.Visible();
            pageWidth = frmScroll->picChild.Width();
            across = frmScroll->HScroll1.Max();
            caption = frmScroll->Caption();
        });
        QVERIFY(allVisible);
        QCOMPARE(pageWidth, 1240.0);
        QCOMPARE(across, 1240 - (800 - 17)); // the layout has run since the page was loaded
        QCOMPARE(caption, u"The Torvik Vollandry    1969 Advertisement"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void the_viewer_takes_the_place_and_size_of_the_screen_data()
    {
        QTest::addColumn<QSize>("screen");
        for (const QSize& screen : {QSize(640, 480), QSize(800, 600), QSize(1024, 768)})
            QTest::addRow("%d by %d", screen.width(), screen.height()) << screen;
    }
    void the_viewer_takes_the_place_and_size_of_the_screen()
    {
        QFETCH(QSize, screen);
        program_->SetScreen(screen);
        Form1->SetLeft(450);
        Form1->SetTop(300);
        QRectF place;
        QRectF corner;
        Visit([&] {
            place = {frmScroll->Left(), frmScroll->Top(), frmScroll->Width(), frmScroll->Height()};
            const Button& button = frmScroll->SSCommand1;
            corner = {button.Left(), button.Top(), button.Width(), button.Height()};
        });
        QCOMPARE(place, QRectF(0, 0, screen.width() * 15, screen.height() * 15));
        QCOMPARE(corner.bottomRight(), QPointF(screen.width(), screen.height()));
    }

    void the_covered_image_gets_its_first_size_and_stays_behind_the_pane()
    {
        QRectF place;
        bool covered = false;
        Visit([&] {
            const Image& image = frmScroll->Image1;
            place = {image.Left(), image.Top(), image.Width(), image.Height()};
            const QObjectList& order = frmScroll->Host().children();
            covered = order.indexOf(&image.Widget()) < order.indexOf(&frmScroll->picParent.Widget());
        });
        QCOMPARE(place, QRectF(0, 0, 620, 600 - 17));
        QVERIFY(covered);
    }

    void the_whole_page_is_drawn_from_the_page_that_is_decoded_already()
    {
        program_->disc.AddFile(u"ads/69brto00.jpg"_s, Encoded(FourCorners({1240, 1610}), "jpg"));
        QImage whole;
        QImage page;
        Visit([&] {
            program_->Click(frmScroll->picChild);
            page = frmScroll->picChild.Pixels();
            whole = static_cast<QLabel&>(frmScroll->Image1.Widget()).pixmap(Qt::ReturnByValue).toImage();
        });
        QCOMPARE(page.size(), QSize(1240, 1610));
        QCOMPARE(whole.size(), QSize(462, 600));
        // A second decoding, at this size, would have other values at the edges of the colours.
        QCOMPARE(whole, page.scaled(whole.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    void the_page_in_both_views_is_the_years_own_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("file");
        QTest::newRow("1969") << 3 << u"69brto00.jpg"_s;
        QTest::newRow("1987") << 21 << u"87brto00.jpg"_s;
        QTest::newRow("2001") << 35 << u"01brto00.jpg"_s;
    }
    void the_page_in_both_views_is_the_years_own()
    {
        QFETCH(int, button);
        QFETCH(QString, file);
        AddPage(file, {900, 700});
        program_->Click(Form1->cmdYR(button));
        QStringList shown;
        Visit([&] {
            shown = {frmScroll->picChild.Picture().FileName(), frmScroll->Image1.Picture().FileName()};
        });
        QCOMPARE(shown, (QStringList{file, file}));
        QCOMPARE(state.DocumentFile, u"G:\\ads\\"_s + file);
    }

    void the_folder_is_found_in_any_letter_case()
    {
        QDir disc(program_->disc.Folder());
        QVERIFY(disc.rename(u"ads/69brto00.jpg"_s, u"ads/69BRTO00.JPG"_s));
        QVERIFY(disc.rename(u"ads"_s, u"ADS"_s));
        QString shown;
        Visit([&] { shown = frmScroll->picChild.Picture().FileName(); });
        QCOMPARE(shown.toLower(), u"69brto00.jpg"_s);
    }

    void the_main_window_takes_no_input_meanwhile_and_does_afterwards()
    {
        bool enabled = true;
        Visit([&] { enabled = Form1->Enabled(); });
        QVERIFY(!enabled);
        QVERIFY(Form1->Enabled());
        QVERIFY(!frmScroll.IsLoaded());
    }

    void each_page_starts_from_a_fresh_load()
    {
        Visit([] {
            frmScroll->HScroll1.SetValue(100);
            frmScroll->VScroll1.SetValue(200);
        });
        QPointF place(-1, -1);
        Visit([&] { place = {frmScroll->picChild.Left(), frmScroll->picChild.Top()}; });
        QCOMPARE(place, QPointF(0, 0));
    }

    void the_play_list_is_closed_first()
    {
        frmSSPhoto->Show();
        program_->Settle();
        bool loaded = true;
        Visit([&] { loaded = frmSSPhoto.IsLoaded(); });
        QVERIFY(!loaded);
    }

    void without_a_page_it_says_sorry_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("a year") << u"1967"_s;
        QTest::newRow("2001") << u"2001"_s;
        QTest::newRow("a topic") << u"The Classic Harwell "_s;
        QTest::newRow("nothing chosen") << nothingChosen;
    }
    void without_a_page_it_says_sorry()
    {
        QFETCH(QString, title);
        Form1->panYear.SetCaption(title);
        state.ErrorCode = u"before"_s;
        bool enabled = true;
        program_->messages.WhenAsked([&] { enabled = Form1->Enabled(); });
        program_->Click(Form1->cmdAd);
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, sorry);
        QCOMPARE(box.style, 48);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.MessageText, sorry);
        QCOMPARE(state.MessageAnswer, u"1"_s);
        QCOMPARE(state.ErrorCode, u"before"_s);
        QCOMPARE(state.DocumentFile, u"G:\\ads\\"_s + title.mid(2, 2) + u"brto00.jpg"_s);
        QVERIFY(!enabled);
        QVERIFY(Form1->Enabled());
        QVERIFY(frmScroll.IsLoaded());
        QVERIFY(!frmScroll->Visible());
    }

    void a_page_that_cannot_be_shown_says_sorry_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray whole = TestDisc::Jpeg(Qt::red, {1240, 1610});
        QTest::newRow("no picture") << QByteArray("no picture at all");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("cut off") << whole.left(whole.size() * 3 / 4);
        QTest::newRow("the first bytes only") << whole.left(20);
        QTest::newRow("larger than any page") << Sized(whole, 60000, 60000);
    }
    void a_page_that_cannot_be_shown_says_sorry()
    {
        QFETCH(QByteArray, content);
        program_->disc.AddFile(u"ads/69brto00.jpg"_s, content);
        program_->Click(Form1->cmdAd);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, sorry);
        QVERIFY(Form1->Enabled());
        QVERIFY(!frmScroll->Visible());
    }

    void after_sorry_the_viewer_that_stayed_loaded_shows_the_next_page()
    {
        program_->Click(Form1->cmdYR(35));
        program_->Click(Form1->cmdAd);
        QCOMPARE(program_->messages.Count(), 1);
        int loads = 0;
        frmScroll->Load = [&] { ++loads; };
        program_->Click(Form1->cmdAd);
        QCOMPARE(program_->messages.Count(), 2);
        program_->Click(Form1->cmdYR(3));
        bool allVisible = false;
        int down = 0;
        Visit([&] {
            allVisible = frmScroll->HScroll1.Visible() && frmScroll->VScroll1.Visible() &&
                         frmScroll->picParent.Visible() && frmScroll->picChild.Visible();
            down = frmScroll->VScroll1.Max();
        });
        QVERIFY(allVisible);
        QCOMPARE(down, 1610 - (600 - 17));
        QCOMPARE(loads, 0);
        QCOMPARE(program_->messages.Count(), 2);
    }

    void a_page_of_20000_pixels_opens()
    {
        AddPage(u"69brto00.jpg"_s, {20000, 1000});
        double width = 0;
        int across = 0;
        Visit([&] {
            width = frmScroll->picChild.Width();
            across = frmScroll->HScroll1.Max();
            program_->Click(frmScroll->picChild); // and the whole of it zoomed out
        });
        QCOMPARE(width, 20000.0);
        QCOMPARE(across, 20000 - 783);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_failure_after_the_loading_is_passed_over()
    {
        int shown = 0;
        ModalVisit visit(
            [&] {
                ++shown;
                Form1->cmdAd.Click.Fire(); // the viewer is on the screen: showing it again fails
                ++shown;
                QVERIFY(frmScroll->Visible());
                frmScroll.Unload();
            },
            [] { frmScroll.Unload(); });
        program_->Click(Form1->cmdAd);
        QCOMPARE(shown, 2);
        QCOMPARE(program_->messages.Count(), 0);
        QVERIFY(!ProgramIsEnding());
    }

private:
    void AddPage(const QString& name, const QSize& size)
    {
        program_->disc.AddFile(u"ads/"_s + name, TestDisc::Jpeg(Qt::darkGreen, size));
    }
    /// A JPEG whose header tells a size that its data does not have.
    static QByteArray Sized(QByteArray jpeg, int width, int height)
    {
        const auto at = jpeg.indexOf("\xff\xc0");
        jpeg[at + 5] = static_cast<char>(height >> 8);
        jpeg[at + 6] = static_cast<char>(height & 255);
        jpeg[at + 7] = static_cast<char>(width >> 8);
        jpeg[at + 8] = static_cast<char>(width & 255);
        return jpeg;
    }
    /// Opens the advertisement by its button, looks at the viewer, and closes it.
    void Visit(const std::function<void()>& look)
    {
        const ModalVisit visit(
            [&] {
                look();
                frmScroll.Unload();
            },
            [] { frmScroll.Unload(); });
        program_->Click(Form1->cmdAd);
        QVERIFY(visit.Ran());
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(AdvertisementTest)
#include "advertisement_test.moc"
