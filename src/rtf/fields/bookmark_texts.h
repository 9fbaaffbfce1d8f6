#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

namespace torvik::rtf {

/// The texts that bookmarks stand around, for fields that repeat them. A very long one is cut short.
class BookmarkTexts {
public:
    /// Text of the body, of a footnote and of a box is gathered side by side.
    struct Place {
        int boxDepth = 0;
        bool inNote = false;

        bool operator==(const Place&) const = default;
    };

    /// Begins a bookmark behind `from` characters of the paragraph that is being read.
    void Begin(const QString& name, Place place, qsizetype from);
    void End(const QString& name, Place place, QStringView paragraph);
    /// A paragraph ends in which bookmarks may go on.
    void EndParagraph(Place place, QStringView paragraph);

    /// The text of a bookmark that has ended, whatever the case of its name; empty for one that has not, and
    /// when fields have repeated very much already.
    QString Repeat(const QString& name);

private:
    struct Open {
        QString name;
        Place place;
        qsizetype from = 0;
        QString text;
        bool isCut = false;
    };
    void Gather(Open& bookmark, QStringView paragraph);

    std::vector<Open> open_;
    QHash<QString, QString> texts_;
    /// Characters that may still be gathered, and repeated.
    qsizetype gatheringLeft_ = 500'000;
    qsizetype repeatingLeft_ = 100'000;
};

} // namespace torvik::rtf
