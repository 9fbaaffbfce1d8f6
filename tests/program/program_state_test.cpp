#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The record of program-wide variables.
class ProgramStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_text_is_empty_at_the_start()
    {
        const ProgramState fresh;
        for (const QString* text :
             {&fresh.DiscRoot, &fresh.PhotoRoot, &fresh.DriveLetters, &fresh.ErrorCode, &fresh.MessageText,
              &fresh.MessageAnswer, &fresh.SoundFile, &fresh.DocumentFile, &fresh.DocumentTitle,
              &fresh.YearCode, &fresh.PreviousPrefix, &fresh.CurrentPhotoFile, &fresh.MovieFolder,
              &fresh.CopySource, &fresh.CopyTarget, &fresh.ClipboardRequest, &fresh.TrayClassName})
            QCOMPARE(*text, QString());
    }

    void every_number_is_0_at_the_start()
    {
        const ProgramState fresh;
        for (const Integer* number :
             {&fresh.MessageResult, &fresh.LoopIndex, &fresh.CurrentYearButton, &fresh.NextYearButton,
              &fresh.PhotoCount, &fresh.PhotoIndex, &fresh.ShownPhotoIndex, &fresh.TorviksPathPos,
              &fresh.MovieCount, &fresh.MovieListIndex})
            QCOMPARE(int(*number), 0);
        for (const std::int32_t* number :
             {&fresh.SlideDelay, &fresh.CopyRemaining, &fresh.ApiResult, &fresh.TrayWindow,
              &fresh.HelpWindowHandle, &fresh.HelpWindowInfo.wStructSize, &fresh.HelpWindowInfo.x,
              &fresh.HelpWindowInfo.y, &fresh.HelpWindowInfo.dx, &fresh.HelpWindowInfo.dy,
              &fresh.HelpWindowInfo.wMax})
            QCOMPARE(*number, 0);
    }

    void every_flag_is_down_at_the_start()
    {
        const ProgramState fresh;
        for (const bool* flag :
             {&fresh.FirstActivation, &fresh.ShowFileNames, &fresh.YearChosen, &fresh.SkipFirstPhoto,
              &fresh.SteppedForward, &fresh.SteppedBackward, &fresh.SlidePlayPressed, &fresh.SlideShowOpen,
              &fresh.SlideRestorePending, &fresh.CopyingPhotos, &fresh.CopyDeclined, &fresh.CopyForSaver})
            QVERIFY(!*flag);
    }

    void the_lists_count_from_1()
    {
        ProgramState fresh;
        for (OneBasedArray<QString>* list : {&fresh.PhotoFiles, &fresh.PhotoNumbers, &fresh.MovieFiles}) {
            QCOMPARE(list->Count(), 0);
            list->Resize(1);
            (*list)(1) = u"first"_s;
            QCOMPARE(ResumeNext([list] { (*list)(0) = QString(); }), 9);
            QCOMPARE(ResumeNext([list] { (*list)(2) = QString(); }), 9);
        }
    }

    void the_counters_hold_16_bits()
    {
        ProgramState fresh;
        fresh.PhotoIndex = 32767;
        QCOMPARE(ResumeNext([&fresh] { fresh.PhotoIndex += 1; }), 6);
        QCOMPARE(int(fresh.PhotoIndex), 32767);
    }
};

TORVIK_APPLESS_TEST(ProgramStateTest)
#include "program_state_test.moc"
