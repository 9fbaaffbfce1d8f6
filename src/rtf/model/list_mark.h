#pragma once

#include "rtf/model/list_key.h"

#include <QString>
#include <QTextListFormat>

namespace torvik::rtf {

struct ListLevel;
struct ParagraphNumbering;

/// What stands before the text of a list's paragraph.
struct ListMark {
    enum class Kind : quint8 { None, Bullet, Number, Literal };
    Kind kind = Kind::None;
    QTextListFormat::Style style = QTextListFormat::ListDisc;
    /// Paragraphs with the same key and level belong to one list.
    ListKey listKey;
    int level = 0;
    int value = 0;
    /// It stands at the right of a paragraph that runs from there.
    bool rightToLeft = false;
    QString before;
    QString after;
    /// The mark as it was written, for marks that the list itself cannot show.
    QString literal;
    /// What comes between such a mark and the text.
    QString gap = QStringLiteral("\t");
};

/// The style in which a list of Qt's shows a number format: 0 decimal, 1 and 2 roman, 3 and 4 letters.
QTextListFormat::Style StyleOfNumberFormat(int format);

/// Reads a mark from its written text, such as "2.", "(iv)" or a bullet. `format` is the number format that
/// is known from elsewhere (23 for bullets), -1 when none is.
ListMark MarkFromText(const QString& written, int format);

/// The number of one level of a list, and the format in which that level writes it.
struct LevelNumber {
    int value = 0;
    int format = 0;
};

/// The mark of a paragraph that comes without the text of its mark: made from the list's definition and the
/// numbers of its levels, the paragraph's own last. `numbers` holds `count` of them.
ListMark MarkFromLevel(const ListLevel& level, const LevelNumber* numbers, int count);
ListMark MarkFromNumbering(const ParagraphNumbering& numbering, int value);

/// `value` as a list writes it: decimal, letters or roman; the latter two have no sign for 0. Of the letters,
/// aa is followed by bb.
QString NumberInStyle(int value, QTextListFormat::Style style);

} // namespace torvik::rtf
