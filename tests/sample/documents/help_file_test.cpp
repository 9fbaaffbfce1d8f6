#include "rtf/rtf_reader.h"
#include "sample/documents/document_plan.h"
#include "support/test_class.h"
#include "ui/help/help_topics.h"

#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

using namespace torvik;
using namespace Qt::StringLiterals;

namespace {

/// Where the links of a text lead.
QStringList LinksOf(const QTextDocument& document)
{
    QStringList links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (const QString link = part.fragment().charFormat().anchorHref(); !link.isEmpty())
                links.append(link);
        }
    }
    return links;
}

} // namespace

/// The help that lies beside the program.
class HelpFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { read_ = rtf::ReadRichText(sample::HelpText(), help_); }

    void it_reads_whole_with_all_its_pictures()
    {
        QVERIFY(read_.wasRtf);
        QVERIFY(!read_.wasDamaged);
        QCOMPARE(read_.lostPictures, 0);
        QVERIFY(read_.pictures >= 2);
    }

    void its_chapters_are_topics()
    {
        const std::vector<HelpTopic> topics = TopicsOf(help_);
        QVERIFY(topics.size() > 20);
        QCOMPARE(topics.front().anchor, u"welcome"_s);
        QSet<QString> anchors;
        for (const HelpTopic& topic : topics) {
            QVERIFY2(!topic.title.isEmpty() && !topic.title.contains(u'{'), qPrintable(topic.anchor));
            QVERIFY2(!anchors.contains(topic.anchor), qPrintable(topic.anchor));
            anchors.insert(topic.anchor);
        }
    }

    void every_link_leads_to_a_topic()
    {
        QStringList anchors;
        for (const HelpTopic& topic : TopicsOf(help_))
            anchors.append(topic.anchor);
        const QStringList links = LinksOf(help_);
        QVERIFY(links.size() > 5);
        for (const QString& link : links)
            QVERIFY2(link.startsWith(u'#') && anchors.contains(link.mid(1)), qPrintable(link));
    }

    void every_menu_and_every_button_is_told_of()
    {
        const QString text = help_.toPlainText();
        for (const char* word : {"File",
                                 "Sound Effects",
                                 "Movies",
                                 "Literature",
                                 "Miscellaneous",
                                 "Artwork",
                                 "Torvik Stuff",
                                 "Specialty",
                                 "HideStatusBar",
                                 "Help",
                                 "Description",
                                 "Statistics",
                                 "Colors",
                                 "Options",
                                 "Nostalgia",
                                 "Advertisement",
                                 "Emblem",
                                 "Script",
                                 "ClipArt",
                                 "SlideShow",
                                 "Print Setup",
                                 "PrintBooklet",
                                 "Print Photo",
                                 "Copy CD-ROM photos to hard drive",
                                 "Copy CD-ROM movies to hard drive",
                                 "Install Screen saver",
                                 "Install Intel Video Software",
                                 "Check Screen Resolution",
                                 "Show File Names",
                                 "Ctrl+F",
                                 "Shift+F3",
                                 "Exit"})
            QVERIFY2(text.contains(QLatin1String(word)), word);
    }

private:
    QTextDocument help_;
    rtf::ReadResult read_;
};

TORVIK_TEST(HelpFileTest)
#include "help_file_test.moc"
