#pragma once

#include <QString>

namespace torvik {

/// Who made the program, as the about box tells it. All of it is invented.
namespace maker {
inline const QString name = QStringLiteral("Quillon Software");
inline const QString street = QStringLiteral("14 Lighthouse Steps");
inline const QString town = QStringLiteral("Port Averel 40127");
inline const QString webAddress = QStringLiteral("http://www.quillon.example");
/// Begins with the sign of character code 169.
inline const QString legalNotice =
    QStringLiteral("\u00a9 1997-2001 Quillon Software. Vollandry and Torvik are names of a car\r\n"
                   "that was never built; whatever resembles a real one is a coincidence.\r\n"
                   "Make copies of your own photographs, not of other people's.");
} // namespace maker

} // namespace torvik
