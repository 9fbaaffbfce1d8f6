#include "hard_drive/saver_panel_fixture.h"

#include "platform/files/disk_space.h"
#include "platform/system/settings_store.h"
#include "windows/main_window.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace torvik {

const QString SaverPanelFixture::success =
    u"The Torvik Vollandry Screen Saver has been installed!\r\n"
    "\r\n"
    "If you have not already done so, you must now activate \r\n"
    "the Torvik Vollandry Screen Saver.\r\n"
    "\r\n"
    "To do this follow these steps:\r\n"
    "    1) Click the Start button on the Windows desktop \r\n"
    "    2) Click the Settings button                    \r\n"
    "    3) Click on Control Panel                       \r\n"
    "    4) Double click on the Display icon             \r\n"
    "    5) Select the Screen Saver tab                  \r\n"
    "    6) Click the dropdown arrow to the left of the Settings button\r\n"
    "    7) Select Torvik2001                           \r\n"
    "    8) Click OK                            "_s;

const QByteArray SaverPanelFixture::saverFile =
    "the saver itself, in more than one block\n" + QByteArray(70'000, 's');

void SaverPanelFixture::init()
{
    home_ = std::make_unique<QTemporaryDir>();
    dataBefore_ = qgetenv("XDG_DATA_HOME");
    configBefore_ = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_DATA_HOME", home_->filePath(u"data"_s).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home_->filePath(u"config"_s).toLocal8Bit());
    QVERIFY(QDir(home_->path()).mkpath(u"config"_s));
    SetDiskMeter([](const QString&) { return DiskClusters{8, 512, 100'000'000, 100'000'000}; });
    program_ = std::make_unique<Program>();
    program_->disc.AddGroup(u"67"_s, 2);
    program_->disc.AddGroup(u"68"_s, 1);
    program_->AddToProgramFolder(u"Torvik2001.scr"_s, saverFile);
    QVERIFY(QFile::setPermissions(program_->InProgramFolder(u"Torvik2001.scr"_s),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                                      QFile::ExeOther));
    program_->StartBrowsing();
}

void SaverPanelFixture::cleanup()
{
    program_.reset();
    SetDiskMeter({});
    qputenv("XDG_DATA_HOME", dataBefore_);
    qputenv("XDG_CONFIG_HOME", configBefore_);
    home_.reset();
}

QString SaverPanelFixture::Setting(const char* key)
{
    return GetSetting(u"SCRNSAVE: The Torvik Vollandry 2001"_s, u"Settings"_s, QString::fromLatin1(key),
                      u"(none)"_s);
}

QByteArray SaverPanelFixture::Content(const QString& hostFile)
{
    QFile file(hostFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void SaverPanelFixture::Open()
{
    Form1->mnuSaver.Click.Fire();
    program_->Settle();
}

void SaverPanelFixture::Spin(const char* part)
{
    auto* arrow = Form1->SpinInterval.Widget().findChild<QAbstractButton*>(
        u"SpinInterval(%1)"_s.arg(QString::fromLatin1(part)));
    QVERIFY(arrow != nullptr);
    QTest::mouseClick(arrow, Qt::LeftButton);
}

void SaverPanelFixture::FillPlayList()
{
    program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
}

void SaverPanelFixture::AddLocalPhotos()
{
    program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
}

QString SaverPanelFixture::InstalledSaver() const
{
    return home_->filePath(u"data/torvik2001/windows/Torvik2001.scr"_s);
}

void SaverPanelFixture::AssertOnly(const QString& message) const
{
    QCOMPARE(program_->messages.Count(), 1);
    QCOMPARE(program_->messages.Last().text, message);
    QCOMPARE(program_->messages.Last().style, msgbox::critical);
    QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry"_s);
}

} // namespace torvik
