#pragma once

#include "rtf/model/list_key.h"

#include <QString>

#include <optional>
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
    /// The level goes on counting after a number of a level above it.
    bool goesOn = false;
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
    /// Opens the next level of the list that is being read, or the one that an override puts in place of its
    /// list's own. Does nothing when there is no list or it has enough levels.
    void BeginLevel();
    /// The level that is being read, nullptr when there is none.
    ListLevel* CurrentLevel();

    void BeginOverride();
    void SetOverriddenList(int id);
    /// What comes next is about the next level of the override that is being read.
    void BeginOverriddenLevel();
    /// That level begins anew.
    void RestartOverriddenLevel();
    void SetStart(int start);
    /// The number by which paragraphs refer to the override that is being read.
    void SetReference(int number);

    /// The definition for a paragraph's list number and level; nullptr when the document has none.
    const ListLevel* Find(int reference, int level) const;
    /// The number with which a level begins for a paragraph's list number.
    int StartOf(int reference, int level) const;
    /// The same for all references to one list, but for those that begin anew.
    ListKey KeyOf(int reference) const;

private:
    struct List {
        int id = 0;
        std::vector<ListLevel> levels;
    };
    std::vector<List> lists_;
    /// What an override changes about a level.
    struct OverriddenLevel {
        std::optional<ListLevel> definition;
        std::optional<int> start;
        bool restarts = false;
    };
    struct Override {
        int id = 0;
        std::vector<OverriddenLevel> levels;

        const OverriddenLevel* LevelAt(int level) const;
        bool Restarts() const;
    };
    std::unordered_map<int, Override> overrides_;
    Override current_;
    bool inOverride_ = false;
};

} // namespace torvik::rtf
