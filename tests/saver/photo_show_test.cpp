#include "saver/fade.h"
#include "saver/photo_show.h"
#include "support/discs/disc_folder.h"
#include "support/discs/test_disc.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

class TestStage : public Stage {
public:
    explicit TestStage(const QSize& size) : size(size) {}

    QSize Pixels() const override { return size; }
    Fade& Shown() override { return fade_; }
    void Refresh() override { ++refreshes; }

    QSize size;
    int refreshes = 0;

private:
    Fade fade_;
};

const QString drive = u"E:\\"_s;
constexpr int hueStep = 14; ///< between the colours of photos, in degrees

} // namespace

/// The show on stages of a test, by a time of the test.
class PhotoShowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        SetVolumeLister([] { return QList<QString>(); });
    }
    void cleanupTestCase() { SetVolumeLister({}); }
    void init() { disc_ = std::make_unique<DiscFolder>(); }
    void cleanup() { disc_.reset(); }

    void photo_follows_photo_after_the_interval()
    {
        Add("a.jpg");
        Add("b.jpg");
        TestStage stage({100, 80});
        Show show({3000, drive});
        show.SetStages({&stage});
        QCOMPARE(PhotosAt(show, stage, {0, 1, 2999, 3000, 5999, 6000, 9000}),
                 (QStringList{"a.jpg", "a.jpg", "a.jpg", "b.jpg", "b.jpg", "a.jpg", "b.jpg"}));
    }

    void it_asks_for_frames_while_it_fades_and_for_nothing_until_the_next_photo()
    {
        Add("a.jpg");
        TestStage stage({100, 80});
        Show show({5000, drive});
        show.SetStages({&stage});
        QCOMPARE(show.Advance(1000), 33);
        QCOMPARE(show.Advance(1400), 33);
        QCOMPARE(show.Advance(1799), 33);
        QCOMPARE(show.Advance(1800), 4200);
        QCOMPARE(show.Advance(5999), 1);
        QCOMPARE(show.Advance(6000), 33);
        QCOMPARE(stage.refreshes, 6);
    }

    void the_passage_takes_no_more_than_half_of_a_short_interval()
    {
        Add("a.jpg");
        TestStage stage({100, 80});
        Show show({1000, drive});
        show.SetStages({&stage});
        QCOMPARE(show.Advance(0), 33);
        QCOMPARE(show.Advance(499), 33);
        QCOMPARE(show.Advance(500), 500);
    }

    void all_stages_show_the_same_photo_each_at_its_own_size()
    {
        Add("a.jpg", Qt::red, {40, 20});
        TestStage wide({200, 100});
        TestStage tall({50, 90});
        Show show({2000, drive});
        show.SetStages({&wide, &tall});
        show.Advance(0);
        QCOMPARE(wide.Shown().Frame().size(), QSize(200, 100));
        QCOMPARE(tall.Shown().Frame().size(), QSize(50, 90));
        QVERIFY(IsRed(wide.Shown().Frame().pixelColor(2, 2)));
        QVERIFY(IsRed(tall.Shown().Frame().pixelColor(25, 45)));
        QCOMPARE(tall.Shown().Frame().pixelColor(25, 10), QColor(Qt::black));
    }

    void damaged_photos_are_passed_over()
    {
        Add("a.jpg");
        QVERIFY(disc_->File("b.jpg", "no picture"));
        QVERIFY(disc_->File("c.jpg"));
        QVERIFY(disc_->File("d.jpg", TestDisc::Jpeg(Qt::blue, {64, 64}).left(300).toStdString()));
        Add("e.jpg");
        TestStage stage({100, 80});
        Show show({1000, drive});
        show.SetStages({&stage});
        QCOMPARE(PhotosAt(show, stage, {0, 1000, 2000}), (QStringList{"a.jpg", "e.jpg", "a.jpg"}));
    }

    void a_folder_without_a_sound_photo_shows_the_card()
    {
        for (int i = 0; i < 40; ++i)
            QVERIFY(disc_->File(u"x%1.jpg"_s.arg(i).toStdString(), "no picture"));
        TestStage stage({320, 240});
        Show show({1000, drive});
        show.SetStages({&stage});
        show.Advance(0);
        QCOMPARE(PhotoOn(stage), QString());
        QVERIFY(IsLit(stage.Shown().Frame()));
    }

    void without_photos_the_card_stands_for_ten_seconds_at_each_place()
    {
        TestStage stage({320, 240});
        Show show({1000, u"Q:\\Torviks\\"_s});
        show.SetStages({&stage});
        show.Advance(0);
        const QImage first = stage.Shown().Frame();
        QVERIFY(IsLit(first));
        QCOMPARE(show.Advance(500), 9500);
        show.Advance(9999);
        QCOMPARE(stage.Shown().Frame(), first);
        show.Advance(10'000);
        QVERIFY(stage.Shown().Frame() != first);
        QVERIFY(IsLit(stage.Shown().Frame()));
    }

    void the_show_begins_when_photos_come_and_the_card_returns_when_they_go()
    {
        TestStage stage({320, 240});
        Show show({2000, drive});
        show.SetStages({&stage});
        QCOMPARE(PhotosAt(show, stage, {0}), QStringList{QString()});
        Add("a.jpg");
        QCOMPARE(PhotosAt(show, stage, {10'000}), QStringList{"a.jpg"});
        QVERIFY(disc_->Remove("a.jpg"));
        QCOMPARE(PhotosAt(show, stage, {12'000}), QStringList{QString()});
    }

    void a_disc_that_is_pulled_out_in_the_middle_brings_the_card()
    {
        for (char name = 'a'; name < 'z'; ++name)
            Add(u"%1.jpg"_s.arg(QLatin1Char(name)).toStdString());
        TestStage stage({320, 240});
        Show show({1000, drive});
        show.SetStages({&stage});
        QCOMPARE(PhotosAt(show, stage, {0, 1000}), (QStringList{"a.jpg", "b.jpg"}));
        disc_->Vanish();
        QCOMPARE(PhotosAt(show, stage, {2000}), QStringList{QString()});
    }

    void a_stage_that_changes_its_size_gets_its_frame_at_once()
    {
        Add("a.jpg", Qt::red, {40, 40});
        TestStage stage({100, 100});
        Show show({5000, drive});
        show.SetStages({&stage});
        show.Advance(0);
        stage.size = {60, 200};
        show.StageResized(stage);
        QCOMPARE(stage.Shown().Frame().size(), QSize(60, 200));
        QVERIFY(IsRed(stage.Shown().Frame().pixelColor(30, 100)));
    }

    void a_new_screen_shows_what_the_others_show()
    {
        Add("a.jpg", Qt::red, {40, 40});
        TestStage before({100, 100});
        Show show({5000, drive});
        show.SetStages({&before});
        show.Advance(0);
        TestStage added({50, 50});
        show.SetStages({&before, &added});
        QVERIFY(IsRed(added.Shown().Frame().pixelColor(25, 25)));
    }

    void without_any_screen_time_goes_on()
    {
        Add("a.jpg");
        Add("b.jpg");
        Show show({1000, drive});
        QStringList names;
        for (const qint64 time : {0, 1000, 2000}) {
            show.SetStages({});
            show.Advance(time);
            TestStage late({100, 80});
            show.SetStages({&late});
            names.append(PhotoOn(late));
        }
        QCOMPARE(names, (QStringList{"a.jpg", "b.jpg", "a.jpg"}));
    }

    void a_machine_that_slept_goes_on_with_the_next_photo()
    {
        Add("a.jpg");
        Add("b.jpg");
        Add("c.jpg");
        TestStage stage({100, 80});
        Show show({1000, drive});
        show.SetStages({&stage});
        QCOMPARE(PhotosAt(show, stage, {0, 3'600'000, 3'600'500, 3'601'000}),
                 (QStringList{"a.jpg", "b.jpg", "b.jpg", "c.jpg"}));
    }

private:
    void Add(const std::string& name, const QColor& colour, const QSize& size = {64, 48})
    {
        QVERIFY(disc_->File(name, TestDisc::Jpeg(colour, size).toStdString()));
    }
    /// A photo with a colour of its own, by which PhotoOn knows it.
    void Add(const std::string& name)
    {
        Add(name, QColor::fromHsv((name.front() - 'a' + 1) * hueStep, 255, 200));
    }

    /// The name of the photo whose colour fills the stage; empty where none does, as on the title card.
    static QString PhotoOn(TestStage& stage)
    {
        const QImage& frame = stage.Shown().Frame();
        const QColor middle = frame.pixelColor(frame.width() / 2, frame.height() / 2);
        const QColor corner = frame.pixelColor(frame.width() / 4, frame.height() / 4);
        if (middle.hsvSaturation() < 200 || qAbs(middle.hsvHue() - corner.hsvHue()) > hueStep / 2)
            return {};
        return u"%1.jpg"_s.arg(QChar(u'a' + (middle.hsvHue() - hueStep / 2) / hueStep));
    }

    static QStringList PhotosAt(Show& show, TestStage& stage, const QList<qint64>& times)
    {
        QStringList names;
        for (const qint64 time : times) {
            show.Advance(time);
            names.append(PhotoOn(stage));
        }
        return names;
    }

    static bool IsRed(const QColor& colour)
    {
        return colour.red() > 230 && colour.green() < 25 && colour.blue() < 25;
    }

    static bool IsLit(const QImage& frame)
    {
        int lit = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                lit += qGray(frame.pixel(x, y)) > 40 ? 1 : 0;
        }
        return lit > frame.width() * frame.height() / 10;
    }

    std::unique_ptr<DiscFolder> disc_;
};

TORVIK_TEST(PhotoShowTest)
#include "photo_show_test.moc"
