#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "documents/year_rule.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "program/topic_catalogue.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/screen.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr YearRule colorsRule{"ER029", "colors.rtf", "\\RichText\\", "colors.rtf", " Colors"};
constexpr YearRule optionsRule{"ER026", "OPTS.rtf", "\\richtext\\", "opts.rtf", " Options"};
constexpr YearRule descriptionRule{"ER002", "desc.rtf", "\\richtext\\", "desc.rtf", " Description"};

/// The colours and the options: one topic has an article of its own, all else goes by the year.
void ShowArticle(const YearRule& rule, const QString& harwellFile)
{
    const QString caption = Form1->panYear.Caption();
    if (caption == nothingChosen)
        return;
    state.ErrorCode = QLatin1String(rule.Code);
    OnError(
        [&] {
            if (caption == classicHarwell) {
                FindArticle(harwellFile);
                state.DocumentTitle = u"The Torvik Vollandry       "_s + caption + QLatin1String(rule.Ending);
            } else {
                state.DocumentTitle = FindArticleOfYear(rule);
            }
            if (state.DocumentFile.isEmpty()) {
                ReportError();
                return;
            }
            CompleteArticlePath(u"\\RichText\\"_s);
            OpenViewer();
        },
        ReportError);
}

struct TopicDescription {
    const char* Caption;
    const char* File;
    const char* Title;
};

constexpr TopicDescription topicDescriptions[] = {
    {"Torvik Postage Stamps ", "\\richtext\\stamps.rtf", "The Torvik Vollandry       Torvik Postage Stamps "},
    {"Torvik Calendars ", "\\richtext\\carstuff.rtf", "The Torvik Vollandry       Torvik Calendars "},
    {"Franklin Mint Collector Knives ", "\\richtext\\knives.rtf",
     "The Torvik Vollandry       Franklin Mint Collector Knives "},
    {"Franklin Mint Collector Plates ", "\\richtext\\plates.rtf",
     "The Torvik Vollandry       Franklin Mint Collector Plates "},
    {"Franklin Mint Die Cast Models ", "\\richtext\\franklin.rtf",
     "The Torvik Vollandry       Franklin Mint Die Cast Models "},
    {"Danbury Mint Die Cast Models ", "\\richtext\\danbury.rtf",
     "The Torvik Vollandry       Danbury Mint Die Cast Models "},
    {"The Torvik Monopoly Game ", "\\richtext\\monopoly.rtf",
     "The Torvik Vollandry       The Torvik Monopoly Game "},
    {"Torvik Metal Signs ", "\\richtext\\desperat.rtf", "The Torvik Vollandry       Torvik Metal Signs "},
    {"Early Torvik Prototypes ", "\\richtext\\ptdesc.rtf",
     "The Torvik Vollandry       Early Torvik Prototypes Description "},
};

const TopicDescription* DescriptionOf(const QString& caption)
{
    for (const TopicDescription& topic : topicDescriptions) {
        if (caption == QLatin1String(topic.Caption))
            return &topic;
    }
    return nullptr;
}

/// Looks the description up. The titles of the introduction and of this century's years wait for the viewer's
/// Load; the others are written on the window at once, which loads it before the file is known to exist.
void FindDescription()
{
    const QString caption = Form1->panYear.Caption();
    if (caption == nothingChosen) {
        FindArticle(u"\\richtext\\Introduction.rtf"_s);
        state.DocumentTitle = u"The Torvik Vollandry       Introduction"_s;
    } else if (const TopicDescription* topic = DescriptionOf(caption)) {
        FindArticle(QLatin1String(topic->File));
        txtForm->SetCaption(QLatin1String(topic->Title));
    } else if (Left(caption, 2) == u"20"_s) {
        state.DocumentTitle = FindArticleOfYear(descriptionRule);
    } else {
        const QString title = FindArticleOfYear(descriptionRule); // may fail before the viewer is touched
        txtForm->SetCaption(title);
    }
}

void cmdDesc_Click()
{
    state.ErrorCode = QLatin1String(descriptionRule.Code);
    OnError(
        [] {
            FindDescription();
            if (state.DocumentFile.isEmpty()) {
                ReportError();
                return;
            }
            CompleteArticlePath(u"\\richtext\\"_s);
            txtForm->SSCommand2.Hide();
            txtForm->SSCommand3.Hide();
            WidenOkButton();
            txtForm->rtbText.SetFileName(state.DocumentFile);
            txtForm->ShowModal();
        },
        ReportError);
}

void ShowNostalgia()
{
    const QString caption = Form1->panYear.Caption();
    if (caption == nothingChosen)
        return;
    state.YearCode = Mid(caption, 3, 2);
    state.DocumentFile = state.DiscRoot + u"\\richtext\\nostalgia"_s + state.YearCode + u".rtf"_s;
    txtForm->SetCaption(u"The Torvik Vollandry     Nostalgia "_s + Left(caption, 4));
    txtForm->rtbText.SetFileName(state.DocumentFile);
    txtForm->ZOrder();
    PutWaveButtonsAway();
    WidenOkButton();
    txtForm->ShowModal();
}

void cmdNostalgia_Click()
{
    OnError(ShowNostalgia, [] {
        state.ErrorCode = u"ER005"_s;
        ReportError();
        Screen.SetMousePointer(MousePointer::Default);
    });
}

} // namespace

void BindYearArticles()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdDesc.Click = cmdDesc_Click;
        form.cmdColors.Click = [] { ShowArticle(colorsRule, u"\\RichText\\sbcolors.rtf"_s); };
        form.cmdOptions.Click = [] { ShowArticle(optionsRule, u"\\RichText\\sbopts.rtf"_s); };
        form.cmdNostalgia.Click = cmdNostalgia_Click;
    });
}

} // namespace torvik
