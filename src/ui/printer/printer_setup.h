#pragma once

#include <QPageLayout>
#include <QPageSize>
#include <QString>

namespace torvik {

/// Where print jobs go, and on what paper.
struct PrinterSetup {
    QString name;    ///< of one of the system's printers; empty where jobs become files
    QPageSize paper; ///< not valid for the printer's own
    QPageLayout::Orientation orientation = QPageLayout::Portrait;

    friend bool operator==(const PrinterSetup&, const PrinterSetup&) = default;
};

} // namespace torvik
