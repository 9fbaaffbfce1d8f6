#pragma once

#include "support/program.h"

#include <QByteArray>
#include <QObject>
#include <QTemporaryDir>

#include <memory>

namespace torvik {

/// What the tests of the saver's panel begin with: the program on a disc of three photos, the saver beside
/// it, and folders of the user that are the test's own.
class SaverPanelFixture : public QObject {
    Q_OBJECT

protected:
    static const QString success; ///< what is told after an installation
    static const QByteArray saverFile;

    static QString Setting(const char* key);
    static QByteArray Content(const QString& hostFile);

    void Open();
    void Spin(const char* part);
    void FillPlayList();
    void AddLocalPhotos();
    QString InstalledSaver() const;
    void AssertOnly(const QString& message) const;

    std::unique_ptr<QTemporaryDir> home_;
    std::unique_ptr<Program> program_;

private Q_SLOTS:
    void init();
    void cleanup();

private:
    QByteArray dataBefore_;
    QByteArray configBefore_;
};

} // namespace torvik
