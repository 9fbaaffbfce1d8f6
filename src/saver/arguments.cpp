#include "saver/arguments.h"

#include "platform/paths/drive_option.h"
#include "ui/scale.h"

#include <QRegularExpression>

#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// One argument taken apart: "/P:1234" is "p" with the value "1234".
struct Argument {
    QString name; ///< lower case, without the signs in front
    std::optional<QString> value;
};

std::optional<Argument> TakeApart(const QString& text)
{
    static const QRegularExpression form(u"^(?:--|-|/)([A-Za-z?][A-Za-z-]*)(?:[:=](.*))?$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    Argument argument{match.captured(1).toLower(), std::nullopt};
    if (match.capturedStart(2) >= 0)
        argument.value = match.captured(2);
    return argument;
}

/// The number of a window, decimal or hexadecimal ("0x1a00007"); 0 when the text is none.
quint64 WindowNumber(const QString& text)
{
    const bool isHexadecimal = text.startsWith(u"0x"_s, Qt::CaseInsensitive);
    return isHexadecimal ? text.mid(2).toULongLong(nullptr, 16) : text.toULongLong();
}

class Reader {
public:
    explicit Reader(const QStringList& arguments) : rest_(arguments) {}

    SaverArguments Read()
    {
        while (!rest_.isEmpty() && read_.problem.isEmpty())
            Take(rest_.takeFirst());
        return read_;
    }
    /// Whether the arguments say what the saver is started for.
    bool HasTask() const { return hasTask_; }

private:
    void Take(const QString& text)
    {
        const auto argument = TakeApart(text);
        const QString name = argument ? argument->name : QString();
        if (name == u"s"_s)
            Choose(SaverTask::Show);
        else if (name == u"c"_s)
            TakeInform();
        else if (name == u"p"_s || name == u"window-id"_s)
            TakeWindow(text, ValueOf(text, *argument));
        else if (name == u"root"_s)
            Choose(SaverTask::Desktop);
        else if (name == u"drive"_s)
            TakeDrive(ValueOf(text, *argument));
        else if (name == u"program-folder"_s)
            read_.programFolder = ValueOf(text, *argument);
        else if (name == u"scale"_s)
            TakeScale(ValueOf(text, *argument));
        else if (name == u"help"_s || name == u"h"_s || name == u"?"_s)
            read_.help = true;
        else if (name == u"version"_s || name == u"v"_s)
            read_.version = true;
        else
            read_.problem = u"There is no option %1."_s.arg(text);
    }

    /// A window that is named stays, whatever else is said.
    void Choose(SaverTask task)
    {
        hasTask_ = true;
        if (read_.task != SaverTask::Embed)
            read_.task = task;
    }

    /// A window may be named after it, for a box in front of that window; the box stands for itself here.
    void TakeInform()
    {
        Choose(SaverTask::Inform);
        if (!rest_.isEmpty() && WindowNumber(rest_.first()) != 0)
            rest_.removeFirst();
    }

    void TakeWindow(const QString& option, const QString& number)
    {
        if (!read_.problem.isEmpty())
            return;
        read_.window = WindowNumber(number);
        if (read_.window == 0)
            read_.problem = u"%1 takes the number of a window; not \"%2\"."_s.arg(option, number);
        hasTask_ = true;
        read_.task = SaverTask::Embed;
    }

    void TakeDrive(const QString& value)
    {
        if (!read_.problem.isEmpty())
            return;
        if (const auto drive = ReadDriveOption(value))
            read_.drives.append(*drive);
        else
            read_.problem = DriveOptionProblem(value);
    }

    void TakeScale(const QString& value)
    {
        read_.scale = value;
        if (read_.problem.isEmpty() && !IsScale(value))
            read_.problem = ScaleProblem(value);
    }

    QString ValueOf(const QString& option, const Argument& argument)
    {
        if (argument.value)
            return *argument.value;
        if (!rest_.isEmpty())
            return rest_.takeFirst();
        read_.problem = u"%1 needs a value."_s.arg(option);
        return {};
    }

    QStringList rest_;
    SaverArguments read_;
    bool hasTask_ = false;
};

} // namespace

SaverArguments ReadSaverArguments(const QStringList& arguments, const QString& screenSaverWindow)
{
    Reader reader(arguments);
    SaverArguments read = reader.Read();
    const quint64 given = WindowNumber(screenSaverWindow);
    if (given != 0 && (!reader.HasTask() || read.task == SaverTask::Desktop)) {
        read.task = SaverTask::Embed;
        read.window = given;
    }
    return read;
}

QString SaverHelpText()
{
    return u"Usage: Torvik2001.scr [task] [options]\n"
           "\n"
           "Shows the photos that File, Install Screen saver of The Torvik Vollandry 2001 has chosen.\n"
           "\n"
           "  /s, -s                    shows them on all screens until a key, a click or the mouse ends it\n"
           "  /p WINDOW                 shows them inside the window of that number\n"
           "  /c, or no task            tells which photos are shown and how that is changed\n"
           "  -root                     for X screen savers: shows them in the window of "
           "$XSCREENSAVER_WINDOW,\n"
           "                            without one behind all windows of the desktop\n"
           "  -window-id WINDOW         the same as /p\n"
           "  --drive LETTER=FOLDER     the folder or disc image stands for a drive; may be given again\n"
           "  --program-folder FOLDER   where the folder disc or the image disc.iso lies that stands for "
           "drive Z\n"
           "  --scale FACTOR            enlarges the title card by 1 to 8; photos fill the screen anyway\n"
           "  -h, --help                shows this text\n"
           "  -v, --version             shows the version\n"_s;
}

} // namespace torvik
