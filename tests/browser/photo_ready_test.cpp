#include "browser/next_and_previous_photo.h"
#include "support/discs/photo_image.h"
#include "support/discs/picture_bytes.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// A step onto a photo that is ready takes nothing more of it from the disc.
class PhotoReadyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        disc_ = std::make_unique<PhotoImage>();
        const QList<QColor> colours{Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::cyan, Qt::magenta};
        for (int number = 0; number < colours.size(); ++number)
            disc_->Add(QByteArray("67") + static_cast<char>('A' + number) + ".JPG",
                       TestDisc::Jpeg(colours.at(number), {64, 48}));
        disc_->Stand();
        program_->StartBrowsing();
        QCOMPARE(Shown(), u"67A.JPG"_s);
        QVERIFY(ShowsAbout(Qt::red));
        QTRY_VERIFY(IsReady("67B.JPG") && IsReady("67C.JPG") && IsReady("67F.JPG"));
    }
    void cleanup()
    {
        program_.reset();
        disc_.reset();
    }

    void steps_forward_show_what_is_ready_and_the_first_one_beyond_is_told_as_damaged()
    {
        disc_->Spoil();
        StepPhotoForward();
        QCOMPARE(Shown(), u"67B.JPG"_s);
        QVERIFY(ShowsAbout(Qt::green));
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG"_s);
        QVERIFY(ShowsAbout(Qt::blue));
        QCOMPARE(program_->messages.Count(), 0);

        StepPhotoForward();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER012\r\n\r\n Unable to load photo."_s));
        QCOMPARE(Shown(), u"67C.JPG"_s);
    }

    void a_step_backward_shows_the_photo_that_is_ready()
    {
        disc_->Spoil();
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67F.JPG"_s);
        QVERIFY(ShowsAbout(Qt::magenta));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_step_back_onto_the_photo_just_left_shows_what_stayed_ready()
    {
        StepPhotoForward();
        StepPhotoForward();
        QTRY_VERIFY(IsReady("67D.JPG") && IsReady("67E.JPG"));
        disc_->Spoil();
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67B.JPG"_s);
        QVERIFY(ShowsAbout(Qt::green));
        QCOMPARE(program_->messages.Count(), 0);
    }

private:
    static bool IsReady(const char* name)
    {
        return Form1->Image4.HasReadAhead(u"E:\\Torviks\\"_s + QString::fromLatin1(name));
    }
    static QString Shown() { return Form1->Image4.Picture().FileName(); }
    static bool ShowsAbout(const QColor& colour)
    {
        const QImage pane = Form1->Image4.Widget().grab().toImage();
        return Alike(pane.pixelColor(pane.rect().center()), colour);
    }

    std::unique_ptr<PhotoImage> disc_;
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PhotoReadyTest)
#include "photo_ready_test.moc"
