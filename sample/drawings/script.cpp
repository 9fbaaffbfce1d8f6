#include "sample/drawings/script.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// Item by item where one side is a list. Words can be equal (0 and 0) or not (1 and 0).
Value Computed(const Value& a, const Value& b, const std::function<double(double, double)>& way)
{
    if (a.IsText())
        return way(a.Text() == b.Text() ? 0 : 1, 0);
    if (!a.IsList() && !b.IsList())
        return way(a.Number(), b.Number());
    Value::List items;
    for (std::size_t i = 0; i < (a.IsList() ? a : b).Items().size(); ++i)
        items.emplace_back(way((a.IsList() ? a.At(i) : a).Number(), (b.IsList() ? b.At(i) : b).Number()));
    return items;
}

} // namespace

const Value& Value::At(std::size_t i) const
{
    if (i >= Items().size())
        Refuse("a longer list");
    return Items()[i];
}

void Value::Refuse(const char* what)
{
    throw std::runtime_error(std::string("Here belongs ") + what + ".");
}

/// Reads the value of an expression from the words of a line, from left to right.
class Script::Reader {
public:
    Reader(Script& script, const Line& line, std::size_t at) : script_(script), line_(line), at_(at) {}

    bool Meets(const char* text)
    {
        const Token& token = line_[at_];
        const bool met = (token.kind == Token::Kind::Sign || token.kind == Token::Kind::Word) &&
                         token.text == QLatin1String(text);
        at_ += met ? 1 : 0;
        return met;
    }
    void Expect(const char* text)
    {
        if (!Meets(text))
            throw std::runtime_error(std::string("Here belongs '") + text + "'.");
    }
    void ExpectEnd() const
    {
        if (line_[at_].kind != Token::Kind::End)
            throw std::runtime_error("The line goes on where it should end.");
    }
    QString Name() { return line_[at_++].text; }

    Value Read()
    {
        Value test = Either();
        if (!Meets("?"))
            return test;
        const bool holds = !idle_ && test.Number() != 0;
        Value value = Passed(!holds, &Reader::Read);
        Expect(":");
        Value other = Passed(holds, &Reader::Read);
        return holds ? value : other;
    }

private:
    using Part = Value (Reader::*)();
    using Way = double (*)(double, double);

    /// Reads on without doing anything where the answer is known.
    Value Passed(bool known, Part part)
    {
        const bool idle = idle_;
        idle_ = idle_ || known;
        Value value = (this->*part)();
        idle_ = idle;
        return value;
    }

    Value Either() { return Joined("||", 1, &Reader::Both); }
    Value Both() { return Joined("&&", 0, &Reader::Test); }

    /// Parts with a sign between them; `deciding` is the answer that settles it.
    Value Joined(const char* sign, int deciding, Part part)
    {
        Value value = (this->*part)();
        while (Meets(sign)) {
            const bool known = idle_ || (value.Number() != 0) == (deciding != 0);
            const Value other = Passed(known, part);
            value = known ? value : Value(other.Number() != 0);
        }
        return value;
    }

    Value Test()
    {
        return Chained(&Reader::Sum, {{"==", [](double a, double b) { return double(a == b); }},
                                      {"!=", [](double a, double b) { return double(a != b); }},
                                      {"<=", [](double a, double b) { return double(a <= b); }},
                                      {">=", [](double a, double b) { return double(a >= b); }},
                                      {"<", [](double a, double b) { return double(a < b); }},
                                      {">", [](double a, double b) { return double(a > b); }}});
    }

    Value Sum()
    {
        return Chained(&Reader::Product, {{"+", [](double a, double b) { return a + b; }},
                                          {"-", [](double a, double b) { return a - b; }}});
    }

    Value Product()
    {
        return Chained(&Reader::Signed, {{"*", [](double a, double b) { return a * b; }},
                                         {"/", [](double a, double b) { return a / b; }},
                                         {"%", [](double a, double b) { return std::fmod(a, b); }}});
    }

    Value Chained(Part part, std::initializer_list<std::pair<const char*, Way>> ways)
    {
        Value value = (this->*part)();
        const auto* met = ways.begin();
        while ((met = std::find_if(ways.begin(), ways.end(),
                                   [this](const auto& way) { return Meets(way.first); })) != ways.end())
            value = With(value, (this->*part)(), met->second);
        return value;
    }

    Value With(const Value& a, const Value& b, Way way) const
    {
        return idle_ ? Value() : Computed(a, b, way);
    }

    Value Signed()
    {
        if (Meets("!"))
            return With(Signed(), 0.0, [](double a, double) { return a == 0 ? 1.0 : 0.0; });
        if (Meets("-"))
            return With(Signed(), 0.0, [](double a, double) { return -a; });
        Value value = Single();
        while (Meets("[")) {
            const Value which = Read();
            Expect("]");
            if (!idle_)
                value = Value(value.At(static_cast<std::size_t>(which.Whole()) % value.Items().size()));
        }
        return value;
    }

    Arguments Listed(const char* end)
    {
        Arguments values;
        if (Meets(end))
            return values;
        do
            values.push_back(Read());
        while (Meets(","));
        Expect(end);
        return values;
    }

    Value Single()
    {
        if (Meets("(")) {
            Value value = Read();
            Expect(")");
            return value;
        }
        if (Meets("{"))
            return Value(Listed("}"));
        const Token& token = line_[at_++];
        if (token.kind == Token::Kind::Number)
            return token.number;
        if (token.kind == Token::Kind::Text)
            return token.text;
        if (token.kind != Token::Kind::Word)
            throw std::runtime_error("A value is missing.");
        if (Meets("(")) {
            const Arguments arguments = Listed(")");
            return idle_ ? Value() : script_.Call(token.text, arguments);
        }
        return idle_ ? Value() : script_.Known(token.text);
    }

    Script& script_;
    const Line& line_;
    std::size_t at_;
    bool idle_ = false; ///< whether it only finds out where the expression ends
};

Script::Script(const char* name) : name_(QString::fromLatin1(name))
{
    QFile file(u":/sample/drawings/%1.txt"_s.arg(name_));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("A drawing is missing: " + name_.toStdString());
    Line line;
    const QStringList texts = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& text : texts) {
        AddLine(text, line);
        int open = 0;
        for (const Token& token : line) {
            if (token.kind == Token::Kind::Sign)
                open += u"({["_s.contains(token.text) ? 1 : u")}]"_s.contains(token.text) ? -1 : 0;
        }
        if (line.empty() || open > 0)
            continue;
        line.emplace_back();
        lines_.push_back(std::move(line));
        line.clear();
    }
}

void Script::AddLine(const QString& text, Line& line) const
{
    for (qsizetype i = 0; i < text.size();) {
        const QChar ch = text[i];
        qsizetype end = i + 1;
        if (ch == u'#')
            return;
        if (ch == u'"') {
            end = text.indexOf(u'"', end);
            if (end < 0)
                throw std::runtime_error("Words without an end: " + text.toStdString());
            line.push_back({Token::Kind::Text, text.mid(i + 1, end - i - 1)});
            ++end;
        } else if (ch.isDigit() || ch == u'.') {
            while (end < text.size() && (text[end].isLetterOrNumber() || text[end] == u'.'))
                ++end;
            bool isNumber = false;
            const QString digits = text.mid(i, end - i);
            const double number =
                digits.startsWith("0x"_L1) ? digits.toUInt(&isNumber, 16) : digits.toDouble(&isNumber);
            if (!isNumber)
                throw std::runtime_error("No number: " + digits.toStdString());
            line.push_back({Token::Kind::Number, {}, number});
        } else if (ch.isLetter()) {
            while (end < text.size() && (text[end].isLetterOrNumber() || text[end] == u'.'))
                ++end;
            line.push_back({Token::Kind::Word, text.mid(i, end - i)});
        } else if (!ch.isSpace()) {
            if (end < text.size() &&
                ((text[end] == u'=' && u"<>=!"_s.contains(ch)) || (text[end] == ch && u"&|"_s.contains(ch))))
                ++end;
            line.push_back({Token::Kind::Sign, text.mid(i, end - i)});
        }
        i = end;
    }
}

std::size_t Script::EndOf(std::size_t block, bool orElse) const
{
    int depth = 1;
    for (std::size_t i = block + 1; i < lines_.size(); ++i) {
        const QString& first = lines_[i][0].text;
        depth += first == "if"_L1 || first == "for"_L1 || first == "def"_L1 ? 1 : first == "end"_L1 ? -1 : 0;
        if (depth == 0 || (orElse && depth == 1 && first == "else"_L1))
            return i;
    }
    throw std::runtime_error("A block has no end.");
}

void Script::Run()
{
    Obey(0, lines_.size());
}

bool Script::Obey(std::size_t first, std::size_t end)
{
    bool given = false;
    for (std::size_t i = first; i < end && !given;) {
        try {
            const Line& line = lines_[i];
            const QString& word = line[0].text;
            if (word == "if"_L1 || word == "for"_L1 || word == "def"_L1) {
                i = ObeyBlock(i, given);
                continue;
            }
            const bool gives = word == "give"_L1;
            const bool sets = line[1].kind == Token::Kind::Sign && line[1].text == "="_L1;
            Reader reader(*this, line, gives ? 1 : sets ? 2 : 0);
            Value value = reader.Read();
            reader.ExpectEnd();
            if (sets)
                Set(word, value);
            if (gives)
                given_ = std::move(value);
            given = gives;
            ++i;
        } catch (const std::exception& failure) {
            // Told once, where it happened.
            if (QString::fromUtf8(failure.what()).startsWith(u"Drawing"))
                throw;
            QString text;
            for (const Token& token : lines_[i])
                text +=
                    (token.kind == Token::Kind::Number ? QString::number(token.number) : token.text) + u' ';
            throw std::runtime_error("Drawing \"" + name_.toStdString() + "\", \"" +
                                     text.trimmed().toStdString() + "\": " + failure.what());
        }
    }
    return given;
}

std::size_t Script::ObeyBlock(std::size_t at, bool& given)
{
    Reader reader(*this, lines_[at], 1);
    const QString word = lines_[at][0].text;
    const std::size_t end = EndOf(at, false);
    if (word == "def"_L1) {
        Procedure& procedure = procedures_[reader.Name()];
        procedure = {{}, at + 1, end};
        for (std::size_t i = 3; i + 2 < lines_[at].size(); i += 2)
            procedure.names.push_back(lines_[at][i].text);
        return end + 1;
    }
    if (word == "for"_L1) {
        const QString name = reader.Name();
        reader.Expect("in");
        const Value list = reader.Read();
        reader.ExpectEnd();
        for (const Value& item : list.Items()) {
            Set(name, item);
            if ((given = Obey(at + 1, end)))
                break;
        }
        return end + 1;
    }
    for (std::size_t test = 1; at != end; test = 2) {
        Reader asked(*this, lines_[at], test);
        const bool otherwise = lines_[at][0].text == "else"_L1 && lines_[at].size() == 2;
        const bool holds = otherwise || asked.Read().Number() != 0;
        const std::size_t next = EndOf(at, true);
        if (holds) {
            given = Obey(at + 1, next);
            break;
        }
        at = next;
    }
    return end + 1;
}

Value Script::Call(const QString& word, const Arguments& arguments)
{
    const auto verb = verbs_.find(word);
    if (verb != verbs_.end())
        return verb->second(arguments);
    const auto found = procedures_.find(word);
    if (found == procedures_.end())
        throw std::runtime_error("An unknown word: " + word.toStdString());
    const Procedure& procedure = found->second;
    scopes_.emplace_back();
    for (std::size_t i = 0; i < procedure.names.size(); ++i)
        scopes_.back()[procedure.names[i]] = i < arguments.size() ? arguments[i] : Value();
    given_ = Value();
    Obey(procedure.first, procedure.end);
    scopes_.pop_back();
    return std::exchange(given_, Value());
}

const Value& Script::Known(const QString& name) const
{
    const auto scope = std::find_if(scopes_.rbegin(), scopes_.rend(),
                                    [&name](const auto& known) { return known.contains(name); });
    if (scope == scopes_.rend())
        throw std::runtime_error("An unknown word: " + name.toStdString());
    return scope->at(name);
}

const Value& Script::Get(const char* name) const
{
    return Known(QString::fromLatin1(name));
}

} // namespace torvik::sample
