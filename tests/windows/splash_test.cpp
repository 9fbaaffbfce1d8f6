#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/screen.h"
#include "windows/splash.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The controls of the splash window.
class SplashTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->Start();
    }
    void cleanup() { program_.reset(); }

    void every_control_has_its_name_and_something_to_say()
    {
        QCOMPARE(Form2->Window().objectName(), u"Form2"_s);
        for (const char* name : {"Image1", "Picture3", "SSPanel1"}) {
            const auto* widget = Form2->Host().findChild<QWidget*>(QString::fromLatin1(name));
            QVERIFY2(widget != nullptr, name);
            QVERIFY2(widget->isVisible(), name);
            QVERIFY2(!widget->accessibleName().isEmpty(), name);
        }
        QVERIFY(Form2->Window().findChild<QTimer*>(u"Timer1"_s) != nullptr);
        QCOMPARE(Form2->MMControl1.objectName(), u"MMControl1"_s);
    }

    void the_artwork_is_there_from_the_first_moment()
    {
        QVERIFY(!Form2->Image1.Picture().IsEmpty());
        QVERIFY(!Form2->Picture3.Picture().IsEmpty());
        QVERIFY(!Form2->SSPanel1.Caption().isEmpty());
    }

    void it_stands_in_the_middle_of_the_screen_without_a_frame()
    {
        QVERIFY(Form2->Window().windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(Form2->Left() * 2 + Form2->Width(), Screen.Width());
        QCOMPARE(Form2->Top() * 2 + Form2->Height(), Screen.Height());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SplashTest)
#include "splash_test.moc"
