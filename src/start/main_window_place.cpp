#include "start/main_window_place.h"

#include "platform/system/settings_store.h"
#include "runtime/failure.h"
#include "runtime/logging.h"
#include "runtime/text.h"
#include "ui/forms/program_title.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString settingsSection = u"Settings"_s;

/// What a person has to do about a setting that cannot be read.
QString HowToMend(const QString& key, const QString& text)
{
    constexpr qsizetype longestShown = 60;
    return u"The setting \"%1\" holds \"%2\" instead of a number. Correct it or delete its line, in the "
           u"section "
           "[%3] of the file\r\n%4"_s.arg(key, text.left(longestShown), settingsSection,
                                          SettingsPlace(applicationTitle));
}

double Saved(const QString& key, double absent)
{
    const QString text = GetSetting(applicationTitle, settingsSection, key, NumberText(absent));
    if (!IsNumeric(text))
        Fail(failure::typeMismatch, HowToMend(key, text));
    qCDebug(logStart, "setting %s is %s", qUtf8Printable(key), qUtf8Printable(text));
    return ToNumber(text);
}

void Save(const QString& key, double twips)
{
    SaveSetting(applicationTitle, settingsSection, key, NumberText(twips));
}

} // namespace

void RestoreMainWindowPlace()
{
    Form1Controls& form = *Form1;
    form.SetWidth(Screen.Width());
    form.SetHeight(Screen.Height());
    form.SetLeft(Saved(u"MainLeft"_s, 0));
    form.SetTop(Saved(u"MainTop"_s, 0));
    form.SetWidth(Saved(u"MainWidth"_s, Screen.Width()));
    form.SetHeight(Saved(u"MainHeight"_s, Screen.Height()));
}

void SaveMainWindowPlace()
{
    const Form1Controls& form = *Form1;
    if (form.WindowState() == Form::State::Minimized)
        return;
    Save(u"MainLeft"_s, form.Left());
    Save(u"MainTop"_s, form.Top());
    Save(u"MainWidth"_s, form.Width());
    Save(u"MainHeight"_s, form.Height());
}

} // namespace torvik
