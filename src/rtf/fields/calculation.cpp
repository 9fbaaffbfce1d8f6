#include "rtf/fields/calculation.h"

#include <QLocale>
#include <QStringView>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace torvik::rtf {

namespace {

constexpr double largest = 1e15; // beyond, not every whole number can be told
constexpr int usualDecimals = 2;
constexpr int mostDecimals = 10;

using Number = std::optional<double>;

Number Combined(Number left, QChar sign, Number right)
{
    if (!left || !right)
        return {};
    double result = 0;
    switch (sign.unicode()) {
    case u'+':
        result = *left + *right;
        break;
    case u'-':
        result = *left - *right;
        break;
    case u'*':
        result = *left * *right;
        break;
    case u'/':
        result = *left / *right;
        break;
    default:
        result = std::pow(*left, *right);
        break;
    }
    // False for what is no number, too.
    return std::abs(result) <= largest ? Number(result) : Number();
}

class Calculation {
public:
    explicit Calculation(QStringView text) : text_(text) {}

    Number Read()
    {
        const Number result = ReadSum(0);
        return Here().isNull() ? result : Number();
    }

private:
    static constexpr int deepest = 30;

    /// The next sign that is no space; a null one at the end.
    QChar Here()
    {
        while (at_ < text_.size() && text_.at(at_).isSpace())
            ++at_;
        return at_ < text_.size() ? text_.at(at_) : QChar();
    }
    bool Takes(QChar sign)
    {
        const bool isHere = Here() == sign;
        at_ += isHere ? 1 : 0;
        return isHere;
    }

    Number ReadSum(int depth)
    {
        Number result = ReadProduct(depth);
        for (QChar sign = Here(); result && (sign == u'+' || sign == u'-'); sign = Here()) {
            ++at_;
            result = Combined(result, sign, ReadProduct(depth));
        }
        return result;
    }

    Number ReadProduct(int depth)
    {
        Number result = ReadPower(depth);
        for (QChar sign = Here(); result && (sign == u'*' || sign == u'/'); sign = Here()) {
            ++at_;
            result = Combined(result, sign, ReadPower(depth));
        }
        return result;
    }

    Number ReadPower(int depth)
    {
        Number result = ReadOperand(depth);
        while (result && Takes(u'^'))
            result = Combined(result, u'^', ReadOperand(depth));
        return result;
    }

    Number ReadOperand(int depth)
    {
        bool isNegative = false;
        for (QChar sign = Here(); sign == u'-' || sign == u'+'; sign = Here()) {
            ++at_;
            isNegative = isNegative != (sign == u'-');
        }
        const Number read = Takes(u'(') ? ReadBracket(depth + 1) : ReadNumber();
        return read && isNegative ? Number(-*read) : read;
    }

    Number ReadBracket(int depth)
    {
        if (depth > deepest)
            return {};
        const Number inside = ReadSum(depth);
        return Takes(u')') ? inside : Number();
    }

    Number ReadNumber()
    {
        Here();
        const qsizetype start = at_;
        while (at_ < text_.size() &&
               ((text_.at(at_) >= u'0' && text_.at(at_) <= u'9') || text_.at(at_) == u'.'))
            ++at_;
        bool isNumber = false;
        const double value = text_.sliced(start, at_ - start).toDouble(&isNumber);
        return isNumber && value <= largest ? Number(value) : Number();
    }

    QStringView text_;
    qsizetype at_ = 0;
};

bool IsPlainPicture(const QString& picture)
{
    return !picture.isEmpty() && picture.count(u'.') <= 1 &&
           std::all_of(picture.begin(), picture.end(),
                       [](QChar c) { return c == u'0' || c == u'#' || c == u',' || c == u'.'; });
}

QString WithoutClosingZeros(QString number)
{
    while (number.endsWith(u'0'))
        number.chop(1);
    if (number.endsWith(u'.'))
        number.chop(1);
    return number;
}

/// A number that is told as nought has no sign.
QString WithoutSignOfNought(const QString& number)
{
    const bool isNought =
        std::none_of(number.begin(), number.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
    return isNought && number.startsWith(u'-') ? number.mid(1) : number;
}

} // namespace

QString CalculationText(const QString& formula, const QString& picture)
{
    const Number result = Calculation(formula).Read();
    if (!result)
        return {};
    if (!IsPlainPicture(picture))
        return WithoutSignOfNought(WithoutClosingZeros(QString::number(*result, 'f', usualDecimals)));
    QLocale english(QLocale::English, QLocale::UnitedStates);
    if (!picture.contains(u','))
        english.setNumberOptions(QLocale::OmitGroupSeparator);
    const qsizetype point = picture.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : picture.size() - point - 1;
    return WithoutSignOfNought(
        english.toString(*result, 'f', static_cast<int>(std::min<qsizetype>(decimals, mostDecimals))));
}

} // namespace torvik::rtf
