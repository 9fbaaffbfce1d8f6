#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/picture_box.h"
#include "ui/desktop/clipboard.h"

#include <QClipboard>
#include <QMimeData>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    PictureBox Pane{*this, u"Pane"_s, {0, 0, 1200, 600}};
};

FormHandle<MainForm> Main;

QClipboard& Desktop()
{
    return *QGuiApplication::clipboard();
}

bool NothingThere()
{
    const QMimeData* content = Desktop().mimeData();
    return content == nullptr || content->formats().isEmpty();
}

/// What another program would have put there.
void FillByOthers()
{
    auto* content = new QMimeData;
    content->setText(u"of another program"_s);
    content->setHtml(u"<b>of another program</b>"_s);
    Desktop().setMimeData(content);
}

} // namespace

/// The clipboard: clearing, texts, pictures.
class ClipboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        Desktop().clear();
    }
    void cleanup() { room_.reset(); }

    void clearing_leaves_nothing_of_what_others_put_there()
    {
        FillByOthers();
        Clipboard.Clear();
        QVERIFY(NothingThere());
    }

    void clearing_an_empty_clipboard_leaves_it_empty()
    {
        Clipboard.Clear();
        Clipboard.Clear();
        QVERIFY(NothingThere());
    }

    void a_text_takes_the_place_of_all_that_was()
    {
        FillByOthers();
        Clipboard.SetText(u"67A.JPG \r\n\u00e9"_s);
        QCOMPARE(Desktop().text(), u"67A.JPG \r\n\u00e9"_s);
        QVERIFY(!Desktop().mimeData()->hasHtml());
    }

    void a_picture_takes_the_place_of_all_that_was()
    {
        FillByOthers();
        Clipboard.SetPicture(Loaded("a.bmp", Encoded(FourCorners({120, 80}), "bmp")));
        QVERIFY(Desktop().mimeData()->hasImage());
        QVERIFY(!Desktop().mimeData()->hasText());
        const QImage image = Desktop().image();
        QCOMPARE(image.size(), QSize(120, 80));
        QCOMPARE(image.convertToFormat(QImage::Format_RGB32), FourCorners({120, 80}));
    }

    void a_picture_goes_at_its_natural_size_whatever_size_it_is_shown_in()
    {
        Clipboard.SetPicture(Loaded("wide.jpg", Encoded(FourCorners({3000, 200}), "jpg")));
        QCOMPARE(Desktop().image().size(), QSize(3000, 200));
    }

    void a_picture_goes_upright()
    {
        const QByteArray turned = WithOrientation(Encoded(FourCorners({120, 80}), "jpg"), 6);
        Clipboard.SetPicture(Loaded("turned.jpg", turned));
        const QImage image = Desktop().image();
        QCOMPARE(image.size(), QSize(80, 120));
        QVERIFY(Alike(image.pixelColor(20, 20), Qt::blue));
        QVERIFY(Alike(image.pixelColor(60, 20), Qt::red));
    }

    void an_empty_picture_leaves_nothing()
    {
        FillByOthers();
        Clipboard.SetPicture(Picture());
        QVERIFY(NothingThere());
    }

    void a_damaged_picture_is_failure_481_and_the_clipboard_stays()
    {
        QByteArray damaged = Encoded(FourCorners({120, 80}), "png");
        const auto data = damaged.indexOf("IDAT");
        QVERIFY(data > 0);
        damaged[data + 6] = static_cast<char>(~damaged[data + 6]);
        const Picture picture = Loaded("damaged.png", damaged);
        FillByOthers();
        QCOMPARE(ResumeNext([&] { Clipboard.SetPicture(picture); }), 481);
        QCOMPARE(Desktop().text(), u"of another program"_s);
    }

    void what_was_copied_stays_when_its_form_is_gone()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->Pane.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners({120, 80}), "bmp")));
        Clipboard.SetPicture(Main->Pane.Picture());
        Main.Unload();
        UiRoom::Settle();
        QCOMPARE(Desktop().image().convertToFormat(QImage::Format_RGB32), FourCorners({120, 80}));
    }

private:
    Picture Loaded(const char* name, const QByteArray& bytes)
    {
        return Picture::Load(folder_.Add(QLatin1String(name), bytes));
    }

    std::unique_ptr<UiRoom> room_;
    PictureFolder folder_;
};

TORVIK_TEST(ClipboardTest)
#include "clipboard_test.moc"
