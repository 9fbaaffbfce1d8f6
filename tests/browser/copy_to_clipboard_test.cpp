#include "browser/copy_to_clipboard.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/controls/combo_box.h"
#include "ui/controls/image.h"
#include "ui/controls/list_box.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// One control of each kind that can be copied from.
struct KindsForm : Form {
    KindsForm() : Form({.name = u"Kinds"_s, .caption = {}, .clientWidth = 6000, .clientHeight = 4500}) {}
    TextBox text{*this, u"Text"_s, {0, 0, 1500, 375}, u"67TOR001.JPG"_s};
    ComboBox combo{*this, u"Combo"_s, {0, 600, 1500, 375}, {u"one"_s, u"two"_s}};
    ListBox list{*this, u"List"_s, {0, 1200, 1500, 900}};
    Image photo{*this, u"Photo"_s, {1800, 0, 900, 600}};
    PictureBox pane{*this, u"Pane"_s, {1800, 900, 900, 600}};
};

FormHandle<KindsForm> kinds;

QClipboard& Desktop()
{
    return *QGuiApplication::clipboard();
}

bool NothingThere()
{
    return Desktop().mimeData() == nullptr || Desktop().mimeData()->formats().isEmpty();
}

} // namespace

/// The question whether to copy, and what of the active control goes on the clipboard.
class CopyToClipboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddFile(u"emblems/emb67.jpg"_s, TestDisc::Jpeg(Qt::red, {160, 90}));
        program_->StartBrowsing();
        Desktop().setText(u"before"_s);
        state.ClipboardRequest = u"2"_s;
    }
    void cleanup() { program_.reset(); }

    void without_a_request_nothing_is_asked_data()
    {
        QTest::addColumn<QString>("request");
        for (const char* request : {"", " ", "1", "x", "22"})
            QTest::addRow("\"%s\"", request) << QString::fromLatin1(request);
    }
    void without_a_request_nothing_is_asked()
    {
        QFETCH(QString, request);
        state.ClipboardRequest = request;
        CopyToClipboard();
        QCOMPARE(program_->messages.Count(), 0);
        QCOMPARE(Desktop().text(), u"before"_s);
    }

    void the_question_is_asked_with_yes_and_no_and_the_answer_is_kept()
    {
        QVERIFY(ProgramState().ClipboardRequest.isEmpty());
        program_->messages.Answer(msgbox::answerNo);
        CopyToClipboard();
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Would you like to copy this image to the Windows Clipboard?"_s);
        QCOMPARE(box.style, 32 + 4);
        QCOMPARE(box.title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(static_cast<int>(state.MessageResult), 7);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(static_cast<int>(state.MessageResult), 6);
    }

    void no_leaves_the_clipboard_untouched()
    {
        OpenEmblem();
        program_->messages.Answer(msgbox::answerNo);
        program_->Click(Form1->picEmblem, Qt::RightButton);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Desktop().text(), u"before"_s);
    }

    void a_right_click_on_a_picture_copies_that_picture()
    {
        OpenEmblem();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(Form1->picEmblem, Qt::RightButton);
        QCOMPARE(Desktop().image().size(), QSize(160, 90));
        QVERIFY(Desktop().image().pixelColor(80, 45).red() > 230);
        QVERIFY(!Desktop().mimeData()->hasText());
    }

    void the_keys_of_the_year_bar_go_on_after_copying()
    {
        OpenEmblem();
        const QString focus = Program::Focus();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(Form1->picEmblem, Qt::RightButton);
        QCOMPARE(Program::Focus(), focus);
        program_->Press(Qt::Key_Period);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67B.JPG"_s);
    }

    void yes_with_a_push_button_active_empties_the_clipboard()
    {
        Form1->cmdYR(2).SetFocus();
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QVERIFY(NothingThere());
    }

    void yes_with_nothing_active_empties_the_clipboard()
    {
        FormHandleBase::DiscardAll();
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QVERIFY(NothingThere());
    }

    void a_text_box_gives_what_is_selected_of_it()
    {
        OpenKinds();
        kinds->text.SetFocus();
        static_cast<QLineEdit&>(kinds->text.Widget()).setSelection(2, 6);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(Desktop().text(), u"TOR001"_s);
    }

    void a_combo_box_gives_its_text()
    {
        OpenKinds();
        kinds->combo.SetFocus();
        program_->Press(Qt::Key_Down);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(Desktop().text(), u"two"_s);
    }

    void a_picture_box_gives_its_picture()
    {
        OpenKinds();
        kinds->pane.Load(u"G:\\emblems\\emb67.jpg"_s);
        program_->Click(kinds->pane);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(Desktop().image().size(), QSize(160, 90));
    }

    void a_list_box_gives_the_selected_text()
    {
        OpenKinds();
        kinds->list.AddItem(u"first"_s);
        kinds->list.AddItem(u"second"_s);
        kinds->list.SetListIndex(1);
        kinds->list.SetFocus();
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(Desktop().text(), u"second"_s);
    }

    void an_image_gives_its_picture_at_natural_size()
    {
        OpenKinds();
        kinds->photo.Load(u"G:\\emblems\\emb67.jpg"_s);
        program_->Click(kinds->photo, Qt::RightButton);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QCOMPARE(Desktop().image().size(), QSize(160, 90));
    }

    void a_picture_without_content_leaves_the_clipboard_empty()
    {
        OpenKinds();
        program_->Click(kinds->pane);
        program_->messages.Answer(msgbox::answerYes);
        CopyToClipboard();
        QVERIFY(NothingThere());
    }

private:
    void OpenEmblem()
    {
        program_->Click(Form1->cmdEmblem);
        QVERIFY(Form1->picEmblem.Visible());
    }
    void OpenKinds()
    {
        kinds->Show();
        program_->Settle();
        kinds->Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&kinds->Window()));
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(CopyToClipboardTest)
#include "copy_to_clipboard_test.moc"
