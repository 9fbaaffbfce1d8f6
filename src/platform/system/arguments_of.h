#pragma once

#include <QString>
#include <QStringList>

namespace torvik {

/// The arguments after the program's name.
inline QStringList ArgumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

} // namespace torvik
