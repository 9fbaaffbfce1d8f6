#include "platform/system/settings_store.h"
#include "start/chosen_scale.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The scale that is remembered.
class ChosenScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        before_ = qgetenv("XDG_CONFIG_HOME");
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", home_->path().toLocal8Bit());
    }
    void cleanup() { qputenv("XDG_CONFIG_HOME", before_); }

    void what_was_given_once_stays()
    {
        QCOMPARE(ChosenScale({}), QString());
        QCOMPARE(ChosenScale(u"2.5"_s), u"2.5"_s);
        QCOMPARE(GetSetting(applicationTitle, u"Settings"_s, u"Scale"_s), u"2.5"_s);
        QCOMPARE(ChosenScale({}), u"2.5"_s);
        QCOMPARE(ChosenScale(u"fit"_s), u"fit"_s);
        QCOMPARE(ChosenScale({}), u"fit"_s);
    }

    void auto_forgets_it()
    {
        ChosenScale(u"2"_s);
        QCOMPARE(ChosenScale(u"auto"_s), u"auto"_s);
        QCOMPARE(GetSetting(applicationTitle, u"Settings"_s, u"Scale"_s, u"none"_s), u"none"_s);
        QCOMPARE(ChosenScale({}), QString());
    }

    void settings_that_cannot_be_written_are_no_hindrance()
    {
        QVERIFY(QDir(home_->path()).mkdir(applicationTitle + u".ini"_s));
        QCOMPARE(ChosenScale(u"2"_s), u"2"_s);
        QCOMPARE(ChosenScale(u"auto"_s), u"auto"_s);
        QCOMPARE(ChosenScale({}), QString());
    }

private:
    QByteArray before_;
    std::unique_ptr<QTemporaryDir> home_;
};

TORVIK_TEST(ChosenScaleTest)
#include "chosen_scale_test.moc"
