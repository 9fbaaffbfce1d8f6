#include "platform/system/registry.h"
#include "support/program.h"
#include "windows/main_window.h"

#include <QFile>
#include <QTest>

using namespace torvik;

namespace {

/// A registry with the two values that name the tool.
class ToolRegistry : public Registry {
public:
    ToolRegistry() { SetRegistry(this); }
    ~ToolRegistry() override { SetRegistry(nullptr); }

    QString Path;   ///< of the tool itself; empty for none
    QString Folder; ///< of the shared tools; empty for none

    std::uint64_t OpenKey(std::uint32_t /*root*/, const QString& key, std::uint32_t /*access*/) override
    {
        if (key == QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"))
            return 1;
        return key == QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location") ? 2 : 0;
    }
    bool QueryValue(std::uint64_t key, const QString& name, RegistryValue& value) override
    {
        if (key == 1 && name == QStringLiteral("PATH") && !Path.isEmpty())
            value = {registry::text, Path.toLocal8Bit()};
        else if (key == 2 && name == QStringLiteral("MSINFO") && !Folder.isEmpty())
            value = {registry::text, Folder.toLocal8Bit()};
        else
            return false;
        return true;
    }
};

} // namespace

/// The menu entry that starts the tool for information about the system.
class SystemInformationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        path_ = qgetenv("PATH");
        program_ = std::make_unique<Program>();
        program_->Disc.AddGroup(QStringLiteral("67"), 1);
        program_->StartBrowsing();
    }
    void cleanup()
    {
        program_.reset();
        qputenv("PATH", path_);
    }

    void the_tool_that_the_registry_names_is_started()
    {
        ToolRegistry registry;
        registry.Path = AddTool(QStringLiteral("my tools/info.exe"));
        Choose();
        QTRY_VERIFY(HasRun(QStringLiteral("my tools/info.exe")));
        QCOMPARE(program_->Messages.Count(), 0);
    }

    void else_the_one_in_the_folder_of_the_shared_tools()
    {
        ToolRegistry registry;
        AddTool(QStringLiteral("shared/MSINFO32.EXE"));
        registry.Folder = QStringLiteral("G:\\shared");
        Choose();
        QTRY_VERIFY(HasRun(QStringLiteral("shared/MSINFO32.EXE")));
        QCOMPARE(program_->Messages.Count(), 0);
    }

    void a_folder_without_the_tool_is_none()
    {
        ToolRegistry registry;
        registry.Folder = QStringLiteral("G:\\shared");
        qputenv("PATH", "/nowhere");
        Choose();
        CheckUnavailable();
    }

    void a_tool_that_does_not_start_reads_like_one_that_is_not_there()
    {
        ToolRegistry registry;
        registry.Path = QStringLiteral("G:\\gone.exe");
        Choose();
        CheckUnavailable();
    }

    void without_a_registry_the_desktops_own_tool_is_started()
    {
        AddTool(QStringLiteral("bin/kinfocenter"));
        qputenv("PATH", program_->Disc.PathOf(QStringLiteral("bin")).toLocal8Bit() + ":/bin:/usr/bin");
        Choose();
        QTRY_VERIFY(HasRun(QStringLiteral("bin/kinfocenter")));
        QCOMPARE(program_->Messages.Count(), 0);
    }

    void without_any_tool_the_message_says_so()
    {
        qputenv("PATH", "/nowhere");
        Choose();
        CheckUnavailable();
    }

private:
    static void Choose() { Form1->mnuSysInfo.Click.Fire(); }

    /// A program on the disc that leaves a mark beside itself; returns its drive path.
    QString AddTool(const QString& relative)
    {
        const QString mark = program_->Disc.PathOf(relative + QStringLiteral(".mark"));
        program_->Disc.AddFile(relative, "#!/bin/sh\n: > '" + mark.toLocal8Bit() + "'\n");
        QFile::setPermissions(program_->Disc.PathOf(relative),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return QStringLiteral("G:\\") + QString(relative).replace(u'/', u'\\');
    }
    bool HasRun(const QString& relative) const
    {
        return QFile::exists(program_->Disc.PathOf(relative + QStringLiteral(".mark")));
    }
    void CheckUnavailable() const
    {
        QCOMPARE(program_->Messages.Count(), 1);
        QCOMPARE(program_->Messages.Last().Text,
                 QStringLiteral("System Information Is Unavailable At This Time"));
        QCOMPARE(program_->Messages.Last().Style, 0);
        QCOMPARE(program_->Messages.Last().Title, QStringLiteral("The Torvik Vollandry 2001"));
    }

    QByteArray path_;
    std::unique_ptr<Program> program_;
};

QTEST_MAIN(SystemInformationTest)
#include "system_information_test.moc"
