#include "browser/photo_caption.h"
#include "documents/article_viewer.h"
#include "documents/bind_documents.h"
#include "documents/year_rule.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "program/topic_catalogue.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr YearRule statisticsRule{"ER027", "stats.rtf", "\\richtext\\", "stats.rtf", " Statistics"};

constexpr int noteWidth = 329; // pixels
constexpr int noteHeight = 106;

/// A topic with a note for each photo. The longer number of the fifth photo takes the place of a zero of the
/// prefix, in most of them.
struct TopicNotes {
    const char* Caption;
    const char* PrefixBelow5;
    const char* PrefixFrom5;
};

constexpr TopicNotes topicNotes[] = {
    {"Early Torvik Prototypes ", "pt00", "pt0"},         {"Torvik Kestra I ", "m100", "m10"},
    {"Arlen Mercer Art Print ", "glsj0", "glsj0"},       {"Torvik Cookies ", "usa00", "usa00"},
    {"The Torvik Monopoly Game ", "vck00", "vck00"},     {"Torvik Metal Signs ", "vms0", "vms0"},
    {"Torvik Postage Stamps ", "zz00", "zz0"},           {"Franklin Mint Collector Knives ", "tek00", "tek0"},
    {"Franklin Mint Die Cast Models ", "tfm00", "tfm0"}, {"Danbury Mint Die Cast Models ", "tdm00", "tdm0"},
};

struct TopicArticle {
    const char* Caption;
    const char* File;
};

/// The second line is never reached: the topic has notes.
constexpr TopicArticle topicArticles[] = {
    {"The Classic Harwell ", "\\richtext\\sbstats.rtf"},
    {"Torvik Kestra I ", "\\richtext\\m1stats.rtf"},
    {"Torvik Kestra III ", "\\richtext\\m3stats.rtf"},
    {"Torvik Super Stallion ", "\\richtext\\msstats.rtf"},
};

template <typename Entry, std::size_t Count>
const Entry* EntryOf(const Entry (&chain)[Count], const QString& caption)
{
    for (const Entry& entry : chain) {
        if (caption == QLatin1String(entry.Caption))
            return &entry;
    }
    return nullptr;
}

void PrepareNote()
{
    RichTextBox& note = Form1->rtbDetails;
    note.ZOrder();
    note.SetWidth(noteWidth);
    note.SetHeight(noteHeight);
    PlaceDetails();
}

/// Notes exist for every second number: the first photo has note 2.
void ShowNote(const TopicNotes& topic)
{
    const double photo = Val(Form1->panPhoto.Caption());
    const char* prefix = photo < 5 ? topic.PrefixBelow5 : topic.PrefixFrom5;
    state.DocumentFile =
        state.DiscRoot + u"\\richtext\\"_s + QLatin1String(prefix) + NumberText(photo * 2) + u".rtf"_s;
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    Form1->rtbDetails.Show();
}

void ShowStatisticsArticle(const QString& caption)
{
    if (const TopicArticle* topic = EntryOf(topicArticles, caption)) {
        FindArticle(QLatin1String(topic->File));
        state.DocumentTitle = u"The Torvik Vollandry       "_s + caption + u" Specifications"_s;
    } else {
        state.DocumentTitle = FindArticleOfYear(statisticsRule);
    }
    if (state.DocumentFile.isEmpty()) {
        ReportError();
        return;
    }
    CompleteArticlePath(u"\\richtext\\"_s);
    OpenViewer();
}

void ShowStatistics()
{
    FocusNextYearButton();
    if (Form1->rtbDetails.Visible()) {
        Form1->rtbDetails.Hide();
        return;
    }
    PrepareNote();
    const QString caption = Form1->panYear.Caption();
    if (const TopicNotes* topic = EntryOf(topicNotes, caption))
        ShowNote(*topic);
    else
        ShowStatisticsArticle(caption);
}

void cmdStats_Click()
{
    if (Form1->panYear.Caption() == nothingChosen)
        return;
    state.ErrorCode = QLatin1String(statisticsRule.Code);
    OnError(ShowStatistics, ReportError);
}

void rtbDetails_Click()
{
    Form1->rtbDetails.Hide();
    FocusNextYearButton();
}

} // namespace

void BindYearStatistics()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdStats.Click = cmdStats_Click;
        form.rtbDetails.Click = rtbDetails_Click;
    });
}

} // namespace torvik
