#include "browser/neighbours.h"
#include "browser/next_and_previous_photo.h"
#include "program/photo_list.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/pictures/pictures_ahead.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

bool IsReady(const char* name)
{
    return Form1->Image4.HasReadAhead(u"G:\\Torviks\\"_s + QString::fromLatin1(name));
}

} // namespace

/// Photos that are ready before the step onto them.
class NeighboursTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 7);
        program_->disc.AddGroup(u"68"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void after_a_selection_both_directions_are_ready()
    {
        QTRY_VERIFY(IsReady("67B.JPG") && IsReady("67G.JPG") && IsReady("67C.JPG"));
        QVERIFY(!IsReady("67D.JPG"));
    }

    void a_step_forward_has_the_next_ones_ready_and_keeps_the_one_before()
    {
        QTRY_VERIFY(IsReady("67B.JPG"));
        StepPhotoForward();
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG"_s);
        QTRY_VERIFY(IsReady("67D.JPG") && IsReady("67E.JPG") && IsReady("67B.JPG"));
        QVERIFY(!IsReady("67A.JPG"));
    }

    void a_step_backward_has_those_before_ready()
    {
        StepPhotoBackward();
        QCOMPARE(Shown(), u"67G.JPG"_s);
        QTRY_VERIFY(IsReady("67F.JPG") && IsReady("67E.JPG") && IsReady("67A.JPG"));
        QVERIFY(!IsReady("67B.JPG"));
    }

    void a_photo_that_was_ready_looks_like_any_other()
    {
        program_->disc.AddPhoto(u"67B.JPG"_s, Qt::red);
        program_->disc.AddPhoto(u"67C.JPG"_s, Qt::blue);
        StepPhotoForward();
        QTRY_VERIFY(IsReady("67C.JPG"));
        StepPhotoForward();
        const QImage ready = Form1->Image4.Widget().grab().toImage();
        const torvik::Picture loaded = torvik::Picture::Load(u"G:\\Torviks\\67C.JPG"_s);
        Form1->Image4.Show(loaded);
        QCOMPARE(ready, Form1->Image4.Widget().grab().toImage());
        QCOMPARE(Form1->Image4.Picture().NaturalSize(), QSize(64, 48));
    }

    void a_photo_that_is_damaged_meanwhile_is_told_when_it_is_stepped_on()
    {
        QTRY_VERIFY(IsReady("67B.JPG") && IsReady("67C.JPG"));
        program_->disc.AddFile(u"Torviks/67B.JPG"_s, "damaged");
        QCOMPARE(program_->messages.Count(), 0);
        StepPhotoForward();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER012\r\n\r\n Unable to load photo."_s));
        QCOMPARE(Shown(), u"67A.JPG"_s);
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG"_s);
    }

    void a_photo_that_was_damaged_when_it_was_read_ahead_may_be_mended_before_the_step()
    {
        program_->disc.AddFile(u"Torviks/67C.JPG"_s, "damaged");
        StepPhotoForward();
        QTRY_VERIFY(IsReady("67D.JPG"));
        program_->disc.AddPhoto(u"67C.JPG"_s);
        StepPhotoForward();
        QCOMPARE(Shown(), u"67C.JPG"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_list_that_is_built_anew_drops_them()
    {
        QTRY_VERIFY(IsReady("67B.JPG"));
        BuildPhotoSet();
        QVERIFY(!IsReady("67B.JPG"));
    }

    void a_pane_of_another_size_drops_them_and_the_next_step_fills_it()
    {
        QTRY_VERIFY(IsReady("67B.JPG"));
        Form1->Image4.SetWidth(Form1->Image4.Width() / 2);
        QCOMPARE(BytesReadAhead(), 0);
        QVERIFY(!IsReady("67B.JPG"));
        StepPhotoForward();
        QTRY_VERIFY(IsReady("67C.JPG"));
        StepPhotoForward();
        QCOMPARE(Form1->Image4.Widget().grab().size(), Form1->Image4.Widget().size());
        QCOMPARE(Shown(), u"67C.JPG"_s);
    }

    void a_photo_without_neighbours_reads_nothing_ahead()
    {
        program_->Click(Form1->cmdYR(2));
        QCOMPARE(Shown(), u"68A.JPG"_s);
        StepPhotoForward();
        QCOMPARE(Shown(), u"68A.JPG"_s);
        QVERIFY(!IsReady("68A.JPG"));
        QVERIFY(!IsReady("67A.JPG"));
    }

    void a_list_shorter_than_its_count_is_no_failure()
    {
        state.PhotoCount = state.PhotoFiles.Count() + 3;
        ReadNeighboursAhead(1, Walk::Backward);
        QCOMPARE(program_->messages.Count(), 0);
    }

private:
    static QString Shown() { return Form1->Image4.Picture().FileName(); }
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(NeighboursTest)
#include "neighbours_test.moc"
