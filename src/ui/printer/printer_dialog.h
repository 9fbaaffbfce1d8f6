#pragma once

#include "ui/printer/printer_setup.h"

#include <QList>

#include <functional>
#include <optional>

namespace torvik {

/// Something that jobs can go to.
struct PrinterOption {
    QString name;            ///< as in PrinterSetup
    QString title;           ///< what the user reads
    QList<QPageSize> papers; ///< never empty
};

/// Shows the modal dialog that chooses printer, paper and orientation, with `present` chosen at first.
/// Nothing comes back when it was cancelled.
std::optional<PrinterSetup> AskForPrinter(const PrinterSetup& present, const QList<PrinterOption>& choices);

/// Answers the dialog in place of the user, for the tests: no dialog is shown while a responder is set.
using PrinterResponder =
    std::function<std::optional<PrinterSetup>(const PrinterSetup& present, const QList<PrinterOption>&)>;
void SetPrinterResponder(PrinterResponder responder);

} // namespace torvik
