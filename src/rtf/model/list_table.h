#pragma once

#include <QString>

#include <unordered_map>
#include <vector>

namespace torvik::rtf {

/// One level of a list definition.
struct ListLevel {
    /// 0 decimal, 1 and 2 roman, 3 and 4 letters (upper case, lower case), 23 bullet, 255 nothing.
    int format = 0;
    int startAt = 1;
    /// What comes before the text: a length, then characters; values below 9 stand for the number of a
    /// level.
    QString text;
    /// The font of the mark, -1 for that of the text.
    int font = -1;
};

/// The list definitions of a document, and the numbers by which paragraphs refer to them.
class ListTable {
public:
    static constexpr int bulletFormat = 23;
    static constexpr int noFormat = 255;
    static constexpr int maxLevels = 9;

    void BeginList();
    /// The list's own number, which the overrides refer to.
    void SetListId(int id);
    /// Opens the next level of the list that is being read; nullptr when there is no list or it has enough.
    ListLevel* BeginLevel();
    /// The level that is being read, nullptr when there is none.
    ListLevel* CurrentLevel();

    void BeginOverride();
    void SetOverriddenList(int id);
    /// The number by which paragraphs refer to the override that is being read.
    void SetReference(int number);

    /// The definition for a paragraph's list number and level; nullptr when the document has none.
    const ListLevel* Find(int reference, int level) const;
    /// A key that is the same for all references to one list.
    int KeyOf(int reference) const;

private:
    struct List {
        int id = 0;
        std::vector<ListLevel> levels;
    };
    std::vector<List> lists_;
    std::unordered_map<int, int> listOfReference_;
    int overriddenId_ = 0;
};

} // namespace torvik::rtf
