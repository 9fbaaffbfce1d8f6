#pragma once

#include "support/discs/test_disc.h"
#include "support/message_script.h"
#include "ui/forms/control.h"

#include <QSize>
#include <QTemporaryDir>

namespace torvik {

/// The whole program in a test: its handlers bound, a record as at the start, a disc in drive G:, a program
/// folder of its own, a screen of 800 by 600 pixels, a clock that is turned by hand, and scripted message
/// boxes.
class Program {
public:
    Program();
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    TestDisc disc;
    MessageScript messages;

    /// A file of the program folder on the host, by its name with forward slashes.
    QString InProgramFolder(const QString& relative) const { return folder_.filePath(relative); }
    void AddToProgramFolder(const QString& relative, const QByteArray& content);
    void SetScreen(const QSize& pixels);
    /// Puts the disc in another drive, or in none with a null letter.
    void PutDiscIn(QChar letter);

    /// Loads Form2, as the start of the program does. Returns when its Load is done.
    void Start();
    /// Lets the five seconds pass and the main window come up with its first photo.
    void PassSplash();
    /// Both.
    void StartBrowsing();

    /// The user's hand: what follows runs until all events are through.
    void Click(Control& control, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(Control& control);
    void Press(Control& control, Qt::Key key);
    /// Presses a key where the focus is.
    void Press(Qt::Key key);
    void Settle();

    /// The name of the control that has the focus, "cmdYR(2)"; empty when none has.
    static QString Focus();

private:
    QTemporaryDir folder_;
};

} // namespace torvik
