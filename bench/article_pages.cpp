// Shows what the reader makes of rich texts, for the comparison with an office suite (tools/side_by_side,
// tools/words_read):
//   article_pages --text FILE                     the text, in UTF-8 on standard output
//   article_pages --pairs FILE PREFIX [PICTURE]   PREFIX-1.png and so on: our pages at the left, each PICTURE
//   at the right

#include "rtf/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr double dotsPerInch = 96;
constexpr double dotsPerMetre = dotsPerInch / 0.0254;
constexpr QSize paper{816, 1056}; // letter, with margins of an inch
constexpr int margin = 96;
constexpr int gap = 12;

QImage EmptyPage()
{
    QImage page(paper, QImage::Format_RGB32);
    page.setDotsPerMeterX(int(std::lround(dotsPerMetre)));
    page.setDotsPerMeterY(int(std::lround(dotsPerMetre)));
    page.fill(Qt::white);
    return page;
}

QList<QImage> PagesOf(const QByteArray& article)
{
    QTextDocument document;
    QFont font(u"Times New Roman"_s);
    font.setPointSize(12);
    document.setDefaultFont(font);
    torvik::rtf::ReadRichText(article, document);
    const QSizeF room(paper.width() - 2 * margin, paper.height() - 2 * margin);
    document.setDocumentMargin(0);
    document.setPageSize(room);
    const torvik::rtf::ExtraLines lines(document);
    QList<QImage> pages;
    for (int number = 0; number < document.pageCount(); ++number) {
        QImage page = EmptyPage();
        QPainter painter(&page);
        const QRectF shown(QPointF(0, number * room.height()), room);
        painter.translate(margin, margin - shown.top());
        painter.setClipRect(shown.adjusted(-2, 0, 2, 0));
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = shown;
        context.palette.setColor(QPalette::Text, Qt::black);
        document.documentLayout()->draw(&painter, context);
        constexpr double ownSize = 1;
        lines.Paint(painter, shown, Qt::black, ownSize);
        painter.end();
        pages.append(page);
    }
    return pages;
}

/// The text with the marks of lists, which the document itself draws.
QString TextOf(const QByteArray& article)
{
    QTextDocument document;
    torvik::rtf::ReadRichText(article, document);
    QString text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (const QTextList* list = block.textList())
            text += list->itemText(block) + u'\t';
        text += block.text() + u'\n';
    }
    return text;
}

QImage SideBySide(const QImage& left, const QImage& right)
{
    QImage both(paper.width() * 2 + gap, paper.height(), QImage::Format_RGB32);
    both.fill(Qt::gray);
    QPainter painter(&both);
    painter.drawImage(0, 0, left);
    painter.drawImage(QRect(QPoint(paper.width() + gap, 0), paper), right);
    return both;
}

int WritePairs(const QByteArray& article, const QString& prefix, const QStringList& pictures)
{
    const QList<QImage> pages = PagesOf(article);
    const qsizetype count = std::max(pages.size(), pictures.size());
    for (qsizetype i = 0; i < count; ++i) {
        const QImage left = i < pages.size() ? pages.at(i) : EmptyPage();
        const QImage right = i < pictures.size() ? QImage(pictures.at(i)) : EmptyPage();
        if (!SideBySide(left, right).save(u"%1-%2.png"_s.arg(prefix).arg(i + 1)))
            return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    const bool wantsText = words.value(1) == QLatin1StringView("--text") && words.size() == 3;
    const bool wantsPairs = words.value(1) == QLatin1StringView("--pairs") && words.size() >= 4;
    QFile file(words.value(2));
    if ((!wantsText && !wantsPairs) || !file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "article_pages --text FILE | --pairs FILE PREFIX [PICTURE]...\n");
        return 2;
    }
    const QByteArray article = file.readAll();
    if (wantsPairs)
        return WritePairs(article, words.at(3), words.mid(4));
    const QByteArray text = TextOf(article).toUtf8();
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
    return 0;
}
