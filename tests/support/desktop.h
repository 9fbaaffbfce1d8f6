#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

namespace torvik {

/// Takes the addresses that the program would give to the desktop.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop();
    ~Desktop() override;
    QStringList Opened;

public Q_SLOTS:
    void Open(const QUrl& address) { Opened.append(address.toString()); }
};

} // namespace torvik
