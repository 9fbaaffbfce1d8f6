#include "documents/article_viewer.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/article_window.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What a reader does with the text of the viewer.
class ArticleTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        QString lines;
        for (int number = 1; number <= 200; ++number)
            lines += u"Line %1\\par\n"_s.arg(number);
        program_->disc.AddDocument(u"long.rtf"_s, lines);
        program_->disc.AddDocument(u"other.rtf"_s, lines + u"Other"_s);
        program_->StartBrowsing();
        txtForm->rtbText.SetFileName(u"G:\\RichText\\long.rtf"_s);
        txtForm->Show();
        program_->Settle();
        txtForm->rtbText.SetFocus();
        pane_ = static_cast<QAbstractScrollArea*>(&txtForm->rtbText.Widget());
        QGuiApplication::clipboard()->clear();
    }
    void cleanup() { program_.reset(); }

    void all_of_it_is_selected_and_copied_by_keys()
    {
        QTest::keyClick(pane_, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(pane_, Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY(copied.startsWith(u"Line 1\nLine 2\n"_s));
        QVERIFY(copied.contains(u"Line 200"_s));
    }

    void a_part_is_selected_by_dragging()
    {
        QTest::mousePress(pane_->viewport(), Qt::LeftButton, {}, {6, 10});
        QTest::mouseMove(pane_->viewport(), {300, 60});
        QTest::mouseRelease(pane_->viewport(), Qt::LeftButton, {}, {300, 60});
        QTest::keyClick(pane_, Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith(u"Line 1\nLine 2"_s), qPrintable(copied));
        QVERIFY(!copied.contains(u"Line 20"_s));
        QVERIFY(txtForm.IsLoaded());
    }

    void keys_scroll_it()
    {
        QCOMPARE(Top(), 0);
        program_->Press(Qt::Key_Down);
        const int line = Top();
        QVERIFY(line > 0);
        program_->Press(Qt::Key_PageDown);
        QVERIFY(Top() > line + 100);
        program_->Press(Qt::Key_PageUp);
        program_->Press(Qt::Key_Up);
        QCOMPARE(Top(), 0);
        program_->Press(Qt::Key_End);
        QCOMPARE(Top(), pane_->verticalScrollBar()->maximum());
        program_->Press(Qt::Key_Home);
        QCOMPARE(Top(), 0);
    }

    void the_wheel_scrolls_it()
    {
        const QPointF place(100, 100);
        QWheelEvent wheel(place, pane_->viewport()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(pane_->viewport(), &wheel);
        QVERIFY(Top() > 0);
    }

    void typing_changes_nothing()
    {
        const QString before = txtForm->rtbText.Text();
        for (const Qt::Key key : {Qt::Key_X, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return})
            program_->Press(key);
        QTest::keyClick(pane_, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(txtForm->rtbText.Text(), before);
        QVERIFY(txtForm.IsLoaded());
    }

    void another_document_begins_at_its_top()
    {
        program_->Press(Qt::Key_End);
        QVERIFY(Top() > 0);
        txtForm->rtbText.SetFileName(u"G:\\RichText\\other.rtf"_s);
        program_->Settle();
        QCOMPARE(Top(), 0);
        QVERIFY(txtForm->rtbText.Text().endsWith(u"Other"_s));
    }

    void a_screen_reader_gets_the_text()
    {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(pane_);
        QVERIFY(interface != nullptr);
        QAccessibleTextInterface* text = interface->textInterface();
        QVERIFY(text != nullptr);
        QVERIFY(text->text(0, text->characterCount()).startsWith(u"Line 1\nLine 2"_s));
        QVERIFY(interface->state().readOnly);
        QVERIFY(interface->state().focusable);
    }

private:
    int Top() const { return pane_->verticalScrollBar()->value(); }

    std::unique_ptr<Program> program_;
    QAbstractScrollArea* pane_ = nullptr;
};

TORVIK_TEST(ArticleTextTest)
#include "article_text_test.moc"
