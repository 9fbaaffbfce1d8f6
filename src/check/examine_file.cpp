#include "check/examine_file.h"

#include "check/examine_article.h"
#include "check/examine_movie.h"
#include "check/examine_picture.h"
#include "runtime/failure.h"

#include <QByteArray>

#include <algorithm>
#include <memory>
#include <new>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Longer files are no pictures or articles that the program could show.
constexpr qint64 longestContent = qint64{512} * 1024 * 1024;
constexpr qsizetype pieceSize = 1 << 20;

QByteArray WholeContent(const ListedFile& file)
{
    const std::unique_ptr<OpenFile> open = file.where.on->Open(file.where.path);
    QByteArray content;
    for (;;) {
        const qsizetype before = content.size();
        const qint64 left = std::max<qint64>(open->Length() - before, 0) + 1;
        content.resize(before + static_cast<qsizetype>(std::min<qint64>(left, pieceSize)));
        const qsizetype got = open->Read(content.data() + before, content.size() - before);
        content.truncate(before + got);
        if (got == 0)
            return content;
        if (content.size() > longestContent)
            Fail(failure::outOfMemory);
    }
}

/// Reads a file of any length to its end; how many bytes came.
qint64 ReadThrough(const ListedFile& file)
{
    const std::unique_ptr<OpenFile> open = file.where.on->Open(file.where.path);
    QByteArray piece(pieceSize, Qt::Uninitialized);
    qint64 length = 0;
    while (const qsizetype got = open->Read(piece.data(), piece.size()))
        length += got;
    return length;
}

bool EndsWith(const QString& path, std::initializer_list<const char*> endings)
{
    return std::any_of(endings.begin(), endings.end(), [&path](const char* ending) {
        return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    });
}

Examination ExamineContent(const ListedFile& file)
{
    if (EndsWith(file.path, {".jpg", ".jpeg", ".bmp", ".png", ".gif"}))
        return ExaminePicture(WholeContent(file));
    if (EndsWith(file.path, {".rtf"}))
        return ExamineArticle(WholeContent(file));
    if (EndsWith(file.path, {".avi", ".wav"})) {
        ReadThrough(file); // a disc that fails in the middle is no damaged movie
        return EndsWith(file.path, {".avi"}) ? ExamineMovie(file.where) : ExamineSound(file.where);
    }
    ReadThrough(file);
    return {};
}

} // namespace

Examination Examine(const ListedFile& file)
{
    if (file.length == 0)
        return {false, FindingKind::Empty, u"has no content"_s, {}};
    Examination examined;
    try {
        examined = ExamineContent(file);
    } catch (const RunTimeError& error) {
        return {false, FindingKind::Unreadable, u"cannot be read to its end: "_s + error.Text(), {}};
    } catch (const std::bad_alloc&) {
        return {false, FindingKind::Unreadable, u"is too large to be read"_s, {}};
    }
    return examined;
}

} // namespace torvik
