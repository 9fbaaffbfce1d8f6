#pragma once

#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// Who made the program, as the about box tells it. All of it is invented.
namespace maker {
inline const QString name = u"Quillon Software"_s;
inline const QString street = u"14 Lighthouse Steps"_s;
inline const QString town = u"Port Averel 40127"_s;
inline const QString webAddress = u"http://www.quillon.example"_s;
/// Begins with the sign of character code 169.
inline const QString legalNotice =
    u"\u00a9 1997-2001 Quillon Software. Vollandry and Torvik are names of a car\r\n"
    "that was never built; whatever resembles a real one is a coincidence.\r\n"
    "Make copies of your own photographs, not of other people's."_s;
} // namespace maker

} // namespace torvik
