#include "check/finding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

QString KindWord(FindingKind kind)
{
    switch (kind) {
    case FindingKind::Missing:
        return u"missing"_s;
    case FindingKind::Empty:
        return u"empty"_s;
    case FindingKind::Unreadable:
        return u"unreadable"_s;
    case FindingKind::Damaged:
        return u"damaged"_s;
    case FindingKind::NeverAsked:
        return u"never-asked"_s;
    case FindingKind::Odd:
        return u"odd"_s;
    case FindingKind::Remark:
        break;
    }
    return u"remark"_s;
}

int CheckResult::CountOf(FindingKind kind) const
{
    return static_cast<int>(std::count_if(findings.begin(), findings.end(),
                                          [kind](const Finding& finding) { return finding.kind == kind; }));
}

bool CheckResult::IsWhole() const
{
    return CountOf(FindingKind::Remark) == findings.size();
}

} // namespace torvik
