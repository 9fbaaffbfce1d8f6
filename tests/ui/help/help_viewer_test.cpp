#include "rtf/rtf_reader.h"
#include "support/desktop.h"
#include "ui/help/help_viewer.h"
#include "ui/look/look.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

using namespace torvik;

namespace {

/// Chapters far enough apart that each needs scrolling to.
QTextDocument* MakeHelp()
{
    QByteArray text = "{\\rtf1 ";
    for (const char* topic : {"start", "start-keys", "print"}) {
        text += QByteArray("{\\*\\bkmkstart ") + topic + "}Heading of " + topic + "{\\*\\bkmkend " + topic +
                "}\\par ";
        for (int line = 0; line < 60; ++line)
            text += "Plain words.\\par ";
        text += QByteArray("The needle of ") + topic + ".\\par ";
    }
    auto* document = new QTextDocument;
    rtf::ReadRichText(text + "}", *document);
    return document;
}

} // namespace

/// The window that shows the help.
class HelpViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ApplyLook(); }
    void init()
    {
        window_ = new HelpViewer(MakeHelp());
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_));
    }
    void cleanup() { delete window_; }

    void the_contents_list_the_topics_as_a_tree()
    {
        QCOMPARE(Contents().topLevelItemCount(), 2);
        QCOMPARE(Contents().topLevelItem(0)->text(0), QStringLiteral("Heading of start"));
        QCOMPARE(Contents().topLevelItem(0)->childCount(), 1);
        QCOMPARE(Contents().topLevelItem(0)->child(0)->text(0), QStringLiteral("Heading of start-keys"));
        QCOMPARE(Contents().topLevelItem(1)->text(0), QStringLiteral("Heading of print"));
        QCOMPARE(Contents().currentItem(), Contents().topLevelItem(0));
    }

    void a_click_on_a_topic_goes_there()
    {
        ClickTopic(Contents().topLevelItem(1));
        QVERIFY(Scroll() > 200);
        QCOMPARE(Contents().currentItem()->text(0), QStringLiteral("Heading of print"));
    }

    void keys_choose_a_topic_too()
    {
        Contents().setFocus();
        QTest::keyClick(&Contents(), Qt::Key_Down);
        QTest::keyClick(&Contents(), Qt::Key_Return);
        QVERIFY(Scroll() > 100);
    }

    void back_and_forward_walk_through_what_was_visited()
    {
        QVERIFY(!Button("HelpBack").isEnabled());
        QVERIFY(!Button("HelpForward").isEnabled());
        ClickTopic(Contents().topLevelItem(1));
        const int print = Scroll();
        Press("HelpBack");
        QVERIFY(Scroll() < 10);
        QVERIFY(!Button("HelpBack").isEnabled());
        Press("HelpForward");
        QCOMPARE(Scroll(), print);
        QVERIFY(!Button("HelpForward").isEnabled());
        Press("HelpBack");
        ClickTopic(Contents().topLevelItem(0)->child(0));
        QVERIFY(!Button("HelpForward").isEnabled()); // a new way gives the old one up
    }

    void back_returns_to_where_the_text_was_left()
    {
        Text().verticalScrollBar()->setValue(77);
        ClickTopic(Contents().topLevelItem(1));
        Press("HelpBack");
        QCOMPARE(Scroll(), 77);
    }

    void contents_goes_to_the_first_topic()
    {
        ClickTopic(Contents().topLevelItem(1));
        Press("HelpHome");
        QVERIFY(Scroll() < 10);
    }

    void the_search_finds_one_place_after_the_other_and_goes_round()
    {
        Search().setText(QStringLiteral("needle of"));
        QTest::keyClick(&Search(), Qt::Key_Return);
        const int first = Text().textCursor().selectionStart();
        QCOMPARE(Text().textCursor().selectedText(), QStringLiteral("needle of"));
        Press("HelpFind");
        QVERIFY(Text().textCursor().selectionStart() > first);
        Press("HelpFind");
        Press("HelpFind");
        QCOMPARE(Text().textCursor().selectionStart(), first);
    }

    void words_that_are_nowhere_are_not_found()
    {
        Search().setText(QStringLiteral("haystack"));
        Press("HelpFind");
        QCOMPARE(Found().text(), QStringLiteral("Not found"));
        Search().setText(QStringLiteral("needle"));
        QCOMPARE(Found().text(), QString());
    }

    void links_lead_to_topics_and_web_addresses_to_the_desktop()
    {
        const Desktop desktop;
        Q_EMIT Text().anchorClicked(QUrl(QStringLiteral("#print")));
        QVERIFY(Scroll() > 200);
        const int before = Scroll();
        Q_EMIT Text().anchorClicked(QUrl(QStringLiteral("#nowhere")));
        QCOMPARE(Scroll(), before);
        Q_EMIT Text().anchorClicked(QUrl(QStringLiteral("http://www.quillon.example")));
        Q_EMIT Text().anchorClicked(QUrl(QStringLiteral("file:///etc/passwd")));
        QCOMPARE(desktop.Opened, QStringList{QStringLiteral("http://www.quillon.example")});
    }

    void escape_closes_it_for_good()
    {
        QTest::keyClick(window_, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window_ == nullptr);
    }

    void every_part_says_what_it_is()
    {
        for (const char* part :
             {"HelpContents", "HelpText", "HelpHome", "HelpBack", "HelpForward", "HelpSearch", "HelpFind"}) {
            auto* widget = window_->findChild<QWidget*>(QLatin1String(part));
            QVERIFY2(widget != nullptr, part);
            QVERIFY2(!widget->accessibleName().isEmpty(), part);
        }
    }

    void a_file_without_topics_is_just_shown()
    {
        auto* plain = new QTextDocument;
        plain->setPlainText(QStringLiteral("Only words."));
        HelpViewer other(plain);
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        other.GoTo(QStringLiteral("start"));
        QCOMPARE(other.findChild<QTextBrowser*>()->toPlainText(), QStringLiteral("Only words."));
        QTest::mouseClick(other.findChild<QPushButton*>(QStringLiteral("HelpHome")), Qt::LeftButton);
    }

private:
    QTextBrowser& Text() const { return *window_->findChild<QTextBrowser*>(QStringLiteral("HelpText")); }
    QTreeWidget& Contents() const
    {
        return *window_->findChild<QTreeWidget*>(QStringLiteral("HelpContents"));
    }
    QLineEdit& Search() const { return *window_->findChild<QLineEdit*>(QStringLiteral("HelpSearch")); }
    QLabel& Found() const { return *window_->findChild<QLabel*>(QStringLiteral("HelpFound")); }
    QPushButton& Button(const char* name) const
    {
        return *window_->findChild<QPushButton*>(QLatin1String(name));
    }
    void Press(const char* name) const { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void ClickTopic(QTreeWidgetItem* item) const
    {
        QTest::mouseClick(Contents().viewport(), Qt::LeftButton, {},
                          Contents().visualItemRect(item).center());
    }
    int Scroll() const { return Text().verticalScrollBar()->value(); }

    QPointer<HelpViewer> window_;
};

QTEST_MAIN(HelpViewerTest)
#include "help_viewer_test.moc"
