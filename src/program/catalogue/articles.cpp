#include "program/catalogue/articles.h"

#include "program/catalogue/topics.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// How a button names the articles of the model years. The two centuries differ in file and title.
struct YearRule {
    const char* errorCode;
    const char* file20; ///< what follows "\RichText\a" and the last digit
    const char* folder19;
    const char* file19; ///< what follows the last two digits
    const char* ending; ///< of the window title
    const char* folder; ///< in front of the name that was found
    const char* Topic::*ownArticle;
    const char* ownEnding; ///< of the window title of such an article
};

const YearRule& RuleOf(ArticleButton button)
{
    static constexpr YearRule description{"ER002",        "desc.rtf",     "\\richtext\\",      "desc.rtf",
                                          " Description", "\\richtext\\", &Topic::description, ""};
    static constexpr YearRule options{"ER026",    "OPTS.rtf",     "\\richtext\\",  "opts.rtf",
                                      " Options", "\\RichText\\", &Topic::options, " Options"};
    static constexpr YearRule statistics{
        "ER027",       "stats.rtf",    "\\richtext\\",     "stats.rtf",
        " Statistics", "\\richtext\\", &Topic::statistics, " Specifications"};
    static constexpr YearRule colors{"ER029",   "colors.rtf",   "\\RichText\\", "colors.rtf",
                                     " Colors", "\\RichText\\", &Topic::colors, " Colors"};
    switch (button) {
    case ArticleButton::Description:
        return description;
    case ArticleButton::Options:
        return options;
    case ArticleButton::Statistics:
        return statistics;
    case ArticleButton::Colors:
        break;
    }
    return colors;
}

Article OfYear(const YearRule& rule, const QString& title)
{
    const QString year = Mid(title, 3, 2);
    const QString ending = QLatin1String(rule.ending);
    if (Left(title, 2) == u"20"_s)
        return {u"\\RichText\\a"_s + Mid(title, 4, 1) + QLatin1String(rule.file20),
                QLatin1String(narrowTitle) + u"20"_s + year + ending};
    return {QLatin1String(rule.folder19) + year + QLatin1String(rule.file19),
            QLatin1String(wideTitle) + u"19"_s + year + ending};
}

} // namespace

Article ArticleOf(ArticleButton button, const QString& title)
{
    if (button == ArticleButton::Description && title == nothingChosen)
        return {u"\\richtext\\Introduction.rtf"_s, QLatin1String(wideTitle) + u"Introduction"_s};
    const YearRule& rule = RuleOf(button);
    const Topic* topic = TopicOf(title);
    if (topic == nullptr || *(topic->*rule.ownArticle) == '\0')
        return OfYear(rule, title);
    const char* ending = button == ArticleButton::Description ? topic->descriptionEnding : rule.ownEnding;
    return {QLatin1String(topic->*rule.ownArticle), QLatin1String(wideTitle) + title + QLatin1String(ending)};
}

QString ArticleFolder(ArticleButton button)
{
    return QLatin1String(RuleOf(button).folder);
}

QString ArticleErrorCode(ArticleButton button)
{
    return QLatin1String(RuleOf(button).errorCode);
}

bool AsksForArticle(ArticleButton button, const Topic& topic)
{
    switch (button) {
    case ArticleButton::Description:
        return topic.hasDescription;
    case ArticleButton::Statistics:
        return topic.hasStatistics && *topic.notes.below5 == '\0';
    case ArticleButton::Options:
    case ArticleButton::Colors:
        break;
    }
    return topic.keepsYearButtons;
}

Article NostalgiaOf(const QString& title)
{
    return {u"\\richtext\\nostalgia"_s + Mid(title, 3, 2) + u".rtf"_s,
            QLatin1String(narrowTitle) + u"Nostalgia "_s + Left(title, 4)};
}

QString NoteOf(const QString& title, double photo)
{
    const Topic* topic = TopicOf(title);
    if (topic == nullptr || *topic->notes.below5 == '\0')
        return {};
    const char* prefix = photo < 5 ? topic->notes.below5 : topic->notes.from5;
    return u"\\richtext\\"_s + QLatin1String(prefix) + NumberText(photo * 2) + u".rtf"_s;
}

} // namespace torvik
