#pragma once

#include "sample/drawings/value.h"

#include <functional>
#include <map>

namespace torvik::sample {

/// What stands in the brackets behind a word. Asked for more than there is, it throws std::out_of_range.
class Arguments : public std::vector<Value> {
public:
    using std::vector<Value>::vector;

    double Number(std::size_t i) const { return at(i).Number(); }
    int Whole(std::size_t i) const { return at(i).Whole(); }
    /// Whether the argument is there and not 0.
    bool IsSet(std::size_t i) const { return i < size() && Number(i) != 0; }
    const QString& Text(std::size_t i) const { return at(i).Text(); }
    const QBrush& Brush(std::size_t i) const { return at(i).Brush(); }
    QColor Colour(std::size_t i) const { return at(i).Colour(); }
    const QPainterPath& Path(std::size_t i) const { return at(i).Path(); }
    const QImage& Image(std::size_t i) const { return at(i).Image(); }
    const Value::List& Items(std::size_t i) const { return at(i).Items(); }
    QPointF Point(std::size_t i) const { return at(i).Point(); }
    QRectF Box(std::size_t i) const { return at(i).Box(); }
};

/// A drawing that is written down in a file of this folder, one step a line:
///   "name = value", "for name in list", "if value", "else if value", "else",
///   "def name(a, b)", "give value", "end",
///   or a word that draws, with what it needs in brackets: "fill(disc({0, 0}, 3), rgb(20, 20, 22))".
/// Values are computed with + - * / %, comparisons, && || ! and "test ? a : b"; lists stand in
/// braces, and two of them, or a list and a number, are added and multiplied item by item.
/// "list[i]" counts round and round. A line goes on while a bracket is open; "#" begins a remark.
/// All numbers are doubles, computed in the order in which they are written.
class Script {
public:
    using Verb = std::function<Value(const Arguments&)>;

    /// Reads the file of this name, without its ending. Throws std::runtime_error where there is none.
    explicit Script(const char* name);

    /// Gives a word its meaning.
    void Teach(const char* word, Verb verb) { verbs_[QString::fromLatin1(word)] = std::move(verb); }
    void Set(const QString& name, const Value& value) { scopes_.back()[name] = value; }
    /// What a name stands for once the script has run. Throws std::runtime_error for an unknown one.
    const Value& Get(const char* name) const;
    /// Draws the whole. Throws std::runtime_error with the line that cannot be obeyed.
    void Run();
    /// What a word or a procedure of the script gives; procedures are known once it has run.
    Value Call(const QString& word, const Arguments& arguments);

private:
    struct Token {
        enum class Kind { Number, Word, Text, Sign, End };
        Kind kind = Kind::End;
        QString text;
        double number = 0;
    };
    using Line = std::vector<Token>;
    struct Procedure {
        std::vector<QString> names;
        std::size_t first = 0, end = 0;
    };
    class Reader;

    void AddLine(const QString& text, Line& line) const;
    /// The line of the "end" of a block, or of its "else".
    std::size_t EndOf(std::size_t block, bool orElse) const;
    /// Obeys the lines from `first` up to `end`; whether a value was given.
    bool Obey(std::size_t first, std::size_t end);
    std::size_t ObeyBlock(std::size_t at, bool& given);
    const Value& Known(const QString& name) const;

    QString name_;
    std::vector<Line> lines_;
    std::map<QString, Verb> verbs_;
    std::map<QString, Procedure> procedures_;
    std::vector<std::map<QString, Value>> scopes_{1};
    Value given_;
};

/// Teaches the words for numbers, lists, shapes, colours and gradients.
void TeachShapes(Script& script);

} // namespace torvik::sample
