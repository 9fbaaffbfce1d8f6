#include "rtf/rtf_reader.h"
#include "support/desktop.h"
#include "support/test_class.h"
#include "ui/help/help_viewer.h"
#include "ui/look/look.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
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
        QCOMPARE(Contents().topLevelItem(0)->text(0), u"Heading of start"_s);
        QCOMPARE(Contents().topLevelItem(0)->childCount(), 1);
        QCOMPARE(Contents().topLevelItem(0)->child(0)->text(0), u"Heading of start-keys"_s);
        QCOMPARE(Contents().topLevelItem(1)->text(0), u"Heading of print"_s);
        QCOMPARE(Contents().currentItem(), Contents().topLevelItem(0));
    }

    void on_a_small_screen_all_of_it_can_be_seen()
    {
        const QSize room = window_->screen()->availableSize();
        QVERIFY(room.width() < 860); // else there is room for its usual size
        QVERIFY(window_->frameGeometry().width() <= room.width());
        QVERIFY(window_->frameGeometry().height() <= room.height());
        QVERIFY(window_->rect().contains(Button("HelpFind").geometry()));
        QVERIFY(Contents().width() >= 220);
    }

    void a_click_on_a_topic_goes_there()
    {
        ClickTopic(Contents().topLevelItem(1));
        QVERIFY(Scroll() > 200);
        QCOMPARE(Contents().currentItem()->text(0), u"Heading of print"_s);
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
        Search().setText(u"needle of"_s);
        QTest::keyClick(&Search(), Qt::Key_Return);
        const int first = Text().textCursor().selectionStart();
        QCOMPARE(Text().textCursor().selectedText(), u"needle of"_s);
        Press("HelpFind");
        QVERIFY(Text().textCursor().selectionStart() > first);
        Press("HelpFind");
        Press("HelpFind");
        QCOMPARE(Text().textCursor().selectionStart(), first);
    }

    void words_that_are_nowhere_are_not_found()
    {
        Search().setText(u"haystack"_s);
        Press("HelpFind");
        QCOMPARE(Found().text(), u"Not found"_s);
        Search().setText(u"needle"_s);
        QCOMPARE(Found().text(), QString());
    }

    void links_lead_to_topics_and_web_addresses_to_the_desktop()
    {
        const Desktop desktop;
        Q_EMIT Text().anchorClicked(QUrl(u"#print"_s));
        QVERIFY(Scroll() > 200);
        const int before = Scroll();
        Q_EMIT Text().anchorClicked(QUrl(u"#nowhere"_s));
        QCOMPARE(Scroll(), before);
        Q_EMIT Text().anchorClicked(QUrl(u"http://www.quillon.example"_s));
        Q_EMIT Text().anchorClicked(QUrl(u"file:///etc/passwd"_s));
        QCOMPARE(desktop.opened, QStringList{u"http://www.quillon.example"_s});
    }

    void keys_go_back_forward_and_to_the_search_data()
    {
        QTest::addColumn<QString>("focus");
        for (const char* part : {"HelpContents", "HelpText", "HelpSearch", "HelpHome"})
            QTest::newRow(part) << QString::fromLatin1(part);
    }
    void keys_go_back_forward_and_to_the_search()
    {
        QFETCH(QString, focus);
        ClickTopic(Contents().topLevelItem(1));
        const int print = Scroll();
        window_->findChild<QWidget*>(focus)->setFocus();
        Press(QKeySequence::Back);
        QVERIFY(Scroll() < 10);
        Press(QKeySequence::Forward);
        QCOMPARE(Scroll(), print);
        Press(QKeySequence::Find);
        QVERIFY(Search().hasFocus());
        Search().setText(u"needle of"_s);
        Press(QKeySequence::FindNext);
        QCOMPARE(Text().textCursor().selectedText(), u"needle of"_s);
    }

    void escape_closes_it_for_good()
    {
        Text().setFocus();
        QTest::keyClick(&Text(), Qt::Key_Escape);
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
        plain->setPlainText(u"Only words."_s);
        HelpViewer other(plain);
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        other.GoTo(u"start"_s);
        QCOMPARE(other.findChild<QTextBrowser*>()->toPlainText(), u"Only words."_s);
        QTest::mouseClick(other.findChild<QPushButton*>(u"HelpHome"_s), Qt::LeftButton);
    }

private:
    QTextBrowser& Text() const { return *window_->findChild<QTextBrowser*>(u"HelpText"_s); }
    QTreeWidget& Contents() const { return *window_->findChild<QTreeWidget*>(u"HelpContents"_s); }
    QLineEdit& Search() const { return *window_->findChild<QLineEdit*>(u"HelpSearch"_s); }
    QLabel& Found() const { return *window_->findChild<QLabel*>(u"HelpFound"_s); }
    QPushButton& Button(const char* name) const
    {
        return *window_->findChild<QPushButton*>(QLatin1String(name));
    }
    void Press(const char* name) const { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    /// To the part with the focus, as a keyboard does.
    static void Press(QKeySequence::StandardKey key)
    {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::keyBindings(key).constFirst());
    }
    void ClickTopic(QTreeWidgetItem* item) const
    {
        QTest::mouseClick(Contents().viewport(), Qt::LeftButton, {},
                          Contents().visualItemRect(item).center());
    }
    int Scroll() const { return Text().verticalScrollBar()->value(); }

    QPointer<HelpViewer> window_;
};

TORVIK_TEST(HelpViewerTest)
#include "help_viewer_test.moc"
