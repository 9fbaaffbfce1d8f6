#include "platform/system/registry.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A registry with the two values that name the tool, for as long as it lives.
class ToolRegistry {
public:
    ToolRegistry()
    {
        SetRegistry([this](std::uint32_t /*root*/, const QString& key, const QString& name) {
            const QString place = key + u'|' + name;
            const bool isPath = place == u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"_s;
            const bool isFolder = place == u"SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO"_s;
            const QString text = isPath ? path : isFolder ? folder : QString();
            return text.isEmpty() ? std::nullopt
                                  : std::optional(RegistryValue{registry::text, text.toLocal8Bit()});
        });
    }
    ~ToolRegistry() { SetRegistry({}); }
    ToolRegistry(const ToolRegistry&) = delete;
    ToolRegistry& operator=(const ToolRegistry&) = delete;

    QString path;   ///< of the tool itself; empty for none
    QString folder; ///< of the shared tools; empty for none
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
        program_->disc.AddGroup(u"67"_s, 1);
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
        registry.path = AddTool(u"my tools/info.exe"_s);
        Choose();
        QTRY_VERIFY(HasRun(u"my tools/info.exe"_s));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void else_the_one_in_the_folder_of_the_shared_tools()
    {
        ToolRegistry registry;
        AddTool(u"shared/MSINFO32.EXE"_s);
        registry.folder = u"G:\\shared"_s;
        Choose();
        QTRY_VERIFY(HasRun(u"shared/MSINFO32.EXE"_s));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_folder_without_the_tool_is_none()
    {
        ToolRegistry registry;
        registry.folder = u"G:\\shared"_s;
        qputenv("PATH", "/nowhere");
        Choose();
        CheckUnavailable();
    }

    void a_tool_that_does_not_start_reads_like_one_that_is_not_there()
    {
        ToolRegistry registry;
        registry.path = u"G:\\gone.exe"_s;
        Choose();
        CheckUnavailable();
    }

    void without_a_registry_the_desktops_own_tool_is_started()
    {
        AddTool(u"bin/kinfocenter"_s);
        qputenv("PATH", program_->disc.PathOf(u"bin"_s).toLocal8Bit() + ":/bin:/usr/bin");
        Choose();
        QTRY_VERIFY(HasRun(u"bin/kinfocenter"_s));
        QCOMPARE(program_->messages.Count(), 0);
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
        const QString mark = program_->disc.PathOf(relative + u".mark"_s);
        program_->disc.AddFile(relative, "#!/bin/sh\n: > '" + mark.toLocal8Bit() + "'\n");
        QFile::setPermissions(program_->disc.PathOf(relative),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return u"G:\\"_s + QString(relative).replace(u'/', u'\\');
    }
    bool HasRun(const QString& relative) const
    {
        return QFile::exists(program_->disc.PathOf(relative + u".mark"_s));
    }
    void CheckUnavailable() const
    {
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"System Information Is Unavailable At This Time"_s);
        QCOMPARE(program_->messages.Last().style, 0);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
    }

    QByteArray path_;
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SystemInformationTest)
#include "system_information_test.moc"
