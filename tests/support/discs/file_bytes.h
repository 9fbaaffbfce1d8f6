#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTest>

namespace torvik {

using namespace Qt::StringLiterals;

/// The content of a file of the host; a text that no file of the tests holds when it cannot be read.
inline QByteArray BytesOf(const QString& hostPath)
{
    QFile file(hostPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// Bytes without a period that fits any block, so that a block in the wrong place shows.
inline QByteArray MixedBytes(int count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    quint32 number = 12345;
    for (char& byte : bytes) {
        number = number * 1664525 + 1013904223;
        byte = static_cast<char>(number >> 24);
    }
    return bytes;
}

/// What tests say that look at the open files of their process, where they cannot.
inline constexpr const char* procIsNeeded =
    "This test needs /proc, which lists the files that a process has open.";

/// How many files this process holds open. Fails the test where that cannot be told.
inline qsizetype OpenFileCount()
{
    const QStringList open = QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System);
    if (open.isEmpty())
        QTest::qFail(procIsNeeded, __FILE__, __LINE__);
    return open.size();
}

} // namespace torvik
