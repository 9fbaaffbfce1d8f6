#include "ui/printer/paper_fonts.h"

#include "ui/printer/slim_font.h"

#include <QFont>
#include <QFontDatabase>
#include <QHash>
#include <QRawFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr qsizetype mostFaces = 32; // a text that asks for more prints them as they are

/// What tells one face from another; its size does not.
QString FaceOf(const QStringList& families, const QFont& font)
{
    return families.join(u'\n') + u'\n' + QString::number(font.weight()) + u'\n' +
           QString::number(static_cast<int>(font.style())) + u'\n' + QString::number(font.stretch()) + u'\n' +
           font.styleName();
}

/// The family of a new slim copy; empty where none can be made.
QString MakeFamily(const QFont& font, qsizetype number)
{
    const QRawFont face = QRawFont::fromFont(font);
    if (!face.isValid())
        return {};
    const QString family = u"Torvik Paper %1"_s.arg(number);
    const QByteArray file = SlimFont(face, family);
    const int added = file.isEmpty() ? -1 : QFontDatabase::addApplicationFontFromData(file);
    return QFontDatabase::applicationFontFamilies(added).contains(family) ? family : QString();
}

} // namespace

bool AreInPaperFonts(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        const bool hasNoGlyph = character < u' ' || character == QChar::ObjectReplacementCharacter;
        return hasNoGlyph || (IsInSlimFonts(character) && !character.isMark());
    });
}

QStringList PaperFamilies(const QFont& font)
{
    static QHash<QString, QString> familyOf;
    const QStringList own = font.families();
    const QString face = FaceOf(own, font);
    auto found = familyOf.constFind(face);
    if (found == familyOf.constEnd() && familyOf.size() < mostFaces)
        found = familyOf.insert(face, MakeFamily(font, familyOf.size() + 1));
    return found == familyOf.constEnd() || found->isEmpty() ? own : QStringList(*found) + own;
}

} // namespace torvik
