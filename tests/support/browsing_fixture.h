#pragma once

#include "support/program.h"

#include <QObject>

#include <memory>

namespace torvik {

/// What a test class of the main window begins with: the program on 1967, which has two photos, and no
/// message yet.
class BrowsingFixture : public QObject {
    Q_OBJECT

protected:
    std::unique_ptr<Program> program_;

private Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace torvik
