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
    QStringList opened;

public Q_SLOTS:
    void Open(const QUrl& address) { opened.append(address.toString()); }
};

} // namespace torvik
