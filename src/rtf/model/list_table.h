#pragma once

#include <QString>

#include <unordered_map>
#include <vector>

namespace torvik::rtf {

/// One level of a list definition.
struct ListLevel {
    /// As NumberInFormat knows them; 23 is a bullet, 255 nothing.
    int format = 0;
    int startAt = 1;
    /// What comes before the text: a length, then characters; values below 9 stand for the number of a
    /// level.
    QString text;
    /// All numbers in the mark are decimal, whatever their levels say.
    bool isLegal = false;
    /// What comes between the mark and the text: 0 a tab, 1 a blank, 2 nothing.
    int follow = 0;
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
    /// The level of the override that is being read next starts anew.
    void BeginOverriddenLevel();
    void SetOverriddenStart(int start);
    /// The number by which paragraphs refer to the override that is being read.
    void SetReference(int number);

    /// The definition for a paragraph's list number and level; nullptr when the document has none.
    const ListLevel* Find(int reference, int level) const;
    /// The number with which a level begins for a paragraph's list number.
    int StartOf(int reference, int level) const;
    /// A key that is the same for all references to one list, but for those that begin anew.
    int KeyOf(int reference) const;

private:
    struct List {
        int id = 0;
        std::vector<ListLevel> levels;
    };
    std::vector<List> lists_;
    struct Override {
        int id = 0;
        /// For every level that begins anew its first number.
        std::vector<int> starts;
        bool hasStarts = false;
    };
    std::unordered_map<int, Override> overrides_;
    Override current_;
};

} // namespace torvik::rtf
