#include "rtf/fields/equation.h"

#include <QList>
#include <QStringList>

#include <algorithm>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

/// A part of a formula, and whether it stands above the line.
struct Part {
    QString text;
    bool isRaised = false;
};

QString InSmallDigits(const QString& text, const QString& digits)
{
    QString small;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return text;
        small += digits.at(c.unicode() - u'0');
    }
    return small;
}

/// A numerator or denominator of several words needs brackets on a line.
QString Operand(const QString& text)
{
    const bool isSimple =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber() || c == u'.'; });
    return isSimple ? text : u'(' + text + u')';
}

class Formula {
public:
    explicit Formula(const QString& text) : text_(text) {}

    QString Read()
    {
        QString read;
        while (at_ < text_.size()) {
            read += ReadPart(0).text;
            if (at_ < text_.size())
                read += text_.at(at_++); // a comma or bracket that belongs to no command
            if (Here().isSpace())
                read += u' ';
        }
        return read.simplified();
    }

private:
    static constexpr int deepest = 30;

    QChar Here() const { return at_ < text_.size() ? text_.at(at_) : QChar(); }
    bool AtLetter() const { return Here() >= u'A' && Here() <= u'z' && Here().isLetter(); }

    /// Everything up to the separator or the bracket that ends an argument.
    Part ReadPart(int depth)
    {
        Part part;
        while (at_ < text_.size() && Here() != u',' && Here() != u';' && Here() != u')') {
            if (Here() == u'(') {
                // A bracket of the text itself.
                ++at_;
                part.text += u'(' + ReadArguments(depth).join(u", "_s) + u')';
            } else if (Here() != u'\\') {
                part.text += text_.at(at_++);
            } else {
                const Part read = ReadCommand(depth);
                part.isRaised = part.isRaised || read.isRaised;
                part.text += read.text;
            }
        }
        part.text = part.text.trimmed();
        return part;
    }

    /// The arguments up to the closing bracket, which is passed over.
    QStringList ReadArguments(int depth)
    {
        QStringList arguments;
        raised_ = -1;
        int raised = -1;
        while (at_ < text_.size()) {
            const Part part = depth < deepest ? ReadPart(depth + 1) : SkipPart();
            if (part.isRaised)
                raised = int(arguments.size());
            arguments.append(part.text);
            if (at_ >= text_.size() || text_.at(at_++) == u')')
                break;
        }
        raised_ = raised;
        return arguments;
    }

    Part SkipPart()
    {
        at_ = text_.size();
        return {};
    }

    QString ReadName()
    {
        QString name;
        while (AtLetter())
            name += text_.at(at_++).toLower();
        return name;
    }

    /// A backslash, a command, its options and its arguments.
    Part ReadCommand(int depth)
    {
        ++at_;
        if (at_ < text_.size() && !AtLetter() && Here() != u'*')
            return {QString(text_.at(at_++))};
        const QString command = ReadName();
        if (command.isEmpty())
            return SkipSwitch();
        QStringList options;
        SkipBlanks();
        while (Here() == u'\\') {
            const qsizetype start = at_++;
            const QString option = ReadName();
            // A bracket of another shape is named by the character itself.
            if (option.isEmpty() || option.size() > 2) {
                at_ = start;
                break;
            }
            QString value;
            if ((option == u"lc" || option == u"rc" || option == u"bc") && Here() == u'\\') {
                ++at_;
                value = at_ < text_.size() ? QString(text_.at(at_++)) : QString();
            }
            while (Here().isDigit() || Here().isSpace())
                ++at_;
            options.append(option + value);
        }
        SkipBlanks();
        if (Here() != u'(')
            return {};
        ++at_;
        const QStringList arguments = ReadArguments(depth);
        return Written(command, options, arguments);
    }

    /// A switch of the field itself: a star and a word or a quoted text.
    Part SkipSwitch()
    {
        if (Here() == u'*')
            ++at_;
        SkipBlanks();
        if (Here() == u'"') {
            const qsizetype end = text_.indexOf(u'"', at_ + 1);
            at_ = end < 0 ? text_.size() : end + 1;
        } else {
            while (at_ < text_.size() && !Here().isSpace() && Here() != u'\\')
                ++at_;
        }
        SkipBlanks();
        return {};
    }

    void SkipBlanks()
    {
        while (Here().isSpace())
            ++at_;
    }

    Part Written(const QString& command, const QStringList& options, const QStringList& arguments) const
    {
        if (arguments.isEmpty())
            return {};
        const QString& first = arguments.constFirst();
        const QString all = arguments.join(u", "_s);
        switch (command.at(0).unicode()) {
        case u'f':
            return {Operand(first) + u'/' + Operand(arguments.value(1))};
        case u'r':
            return {(arguments.size() > 1 ? first : QString()) + u"√("_s + arguments.constLast() + u')'};
        case u's':
            if (options.contains(u"up"_s))
                return {InSmallDigits(all, u"⁰¹²³⁴⁵⁶⁷⁸⁹"_s), true};
            return {options.contains(u"do"_s) ? InSmallDigits(all, u"₀₁₂₃₄₅₆₇₈₉"_s) : all};
        case u'o':
            return {Overlaid(arguments)};
        case u'b':
            return {Bracketed(all, options)};
        case u'i':
            return {Integral(options, arguments)};
        case u'd':
            return {};
        default:
            return {all};
        }
    }

    /// What stands above is the reading of what stands below.
    QString Overlaid(const QStringList& arguments) const
    {
        if (raised_ < 0 || raised_ >= arguments.size() || arguments.size() < 2)
            return arguments.join(QString());
        QString below;
        for (int i = 0; i < arguments.size(); ++i)
            below += i == raised_ ? QString() : arguments.at(i);
        return below + u'(' + arguments.at(raised_) + u')';
    }

    static QString Bracketed(const QString& text, const QStringList& options)
    {
        QString left = u"("_s;
        QString right = u")"_s;
        for (const QString& option : options) {
            if (option.size() < 3)
                continue;
            const QString sign = option.mid(2);
            if (option.startsWith(u'l') || option.startsWith(u'b'))
                left = sign;
            if (option.startsWith(u'r'))
                right = sign;
            if (option.startsWith(u'b'))
                right = sign == u"[" ? u"]"_s : sign == u"{" ? u"}"_s : sign == u"(" ? u")"_s : sign;
        }
        return left + text + right;
    }

    static QString Integral(const QStringList& options, const QStringList& arguments)
    {
        const QString sign = options.contains(u"su"_s) ? u"∑"_s : options.contains(u"pr"_s) ? u"∏"_s : u"∫"_s;
        const QString from = arguments.value(0).isEmpty() ? QString() : u'_' + Operand(arguments.value(0));
        const QString to = arguments.value(1).isEmpty() ? QString() : u'^' + Operand(arguments.value(1));
        return sign + from + to + u' ' + arguments.value(2);
    }

    const QString& text_;
    qsizetype at_ = 0;
    /// Which of the arguments that were read last stands above the line, -1 for none.
    int raised_ = -1;
};

} // namespace

QString EquationText(const QString& formula)
{
    return Formula(formula).Read();
}

} // namespace torvik::rtf
