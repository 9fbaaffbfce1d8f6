#include "runtime/failure.h"
#include "slides/shown_slide.h"
#include "support/slide_visit.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the slide show writes beside a photo.
class ShownSlideTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { program_ = std::make_unique<Program>(); }
    void cleanup() { program_.reset(); }

    void a_photo_has_the_title_of_its_year_or_topic()
    {
        const QList<std::pair<QString, QString>> titles = {
            {u"67"_s, u"1967 "_s},
            {u"99"_s, u"1999 "_s},
            {u"A0"_s, u"2000"_s},
            {u"A1"_s, u"2001"_s},
            {u"CW"_s, u"The Tarrant Torvik "_s},
            {u"GB"_s, u"19GB "_s},
            {u"GH"_s, u"19GH "_s},
            {u"GL"_s, u"19GL "_s},
            {u"M1"_s, u"Torvik Kestra I "_s},
            {u"M3"_s, u"Torvik Kestra III "_s},
            {u"MS"_s, u"Torvik Super Stallion "_s},
            {u"PT"_s, u"Early Torvik Prototypes "_s},
            {u"SB"_s, u"The Classic Harwell "_s},
            {u"TC"_s, u"19TC "_s},
            {u"TD"_s, u"Danbury Mint Die Cast Models "_s},
            {u"TE"_s, u"Franklin Mint Collector Knives "_s},
            {u"TF"_s, u"Franklin Mint Die Cast Models "_s},
            {u"TP"_s, u"19TP "_s},
            {u"US"_s, u"19US "_s},
            {u"VC"_s, u"Torvik Cookies "_s},
            {u"VM"_s, u"Torvik Metal Signs "_s},
            {u"XX"_s, u"19XX "_s},
            {u"ZZ"_s, u"Torvik Postage Stamps "_s},
        };
        for (const auto& [code, title] : titles)
            program_->disc.AddGroup(code, 1);
        program_->StartBrowsing();
        QVERIFY(InSlideShow(*program_, [&] {
            int number = 0;
            for (const auto& [code, title] : titles) {
                ++number;
                QCOMPARE(ShownSlide(),
                         u"%1A.JPG, %2 of %3, %4"_s.arg(code).arg(number).arg(titles.size()).arg(title));
                program_->Press(Qt::Key_Period);
            }
        }));
    }

    void a_cursor_on_no_photo_is_failure_9()
    {
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
        state.PhotoIndex = 0;
        QCOMPARE(ResumeNext(SetSlideCaption), 9);
        state.SlideShowOpen = true;
        frmSlide.Unload();
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(ShownSlideTest)
#include "shown_slide_test.moc"
