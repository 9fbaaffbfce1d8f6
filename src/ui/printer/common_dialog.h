#pragma once

#include <QObject>
#include <QString>

namespace torvik {

/// Numbers that a common dialog takes.
namespace commonDialog {
inline constexpr int printSetup = 64; ///< among the flags: the printer dialog only sets up
inline constexpr int showPrinter = 5; ///< as the action: the printer dialog
} // namespace commonDialog

/// What a common dialog is at design.
struct CommonDialogDesign {
    QString defaultExt;
    QString dialogTitle;
    QString filter;
};

/// A control that nobody sees and that shows the dialogs of the system.
class CommonDialog : public QObject {
public:
    explicit CommonDialog(const QString& name, CommonDialogDesign design = {});

    const QString& DefaultExt() const { return design_.defaultExt; }
    const QString& DialogTitle() const { return design_.dialogTitle; }
    const QString& Filter() const { return design_.filter; }

    int Flags() const { return flags_; }
    void SetFlags(int flags) { flags_ = flags; }

    /// Shows a dialog and returns when it is answered. 5 is the printer's: what is chosen holds for all
    /// later print jobs, and Cancel changes nothing. Failure 380 for a number without a dialog.
    void SetAction(int action);

    const QString& HelpFile() const { return helpFile_; }
    void SetHelpFile(const QString& path) { helpFile_ = path; }
    int HelpCommand() const { return helpCommand_; }
    void SetHelpCommand(int command) { helpCommand_ = command; }
    /// Gives the help system its command (ui/help/help_system.h) with the help file.
    void ShowHelp() const;

private:
    CommonDialogDesign design_;
    int flags_ = 0;
    QString helpFile_;
    int helpCommand_ = 0;
};

} // namespace torvik
