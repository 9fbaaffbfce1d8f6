#pragma once

#include <QString>

namespace torvik {

class Picture;

/// The desktop's clipboard. What is put there stays when its form is gone, and after the end of the program
/// where the desktop keeps it. Another program may own the clipboard at any moment: it is taken over without
/// asking that program for anything, so one that hangs holds nobody up.
class ClipboardObject {
public:
    /// Leaves nothing on the clipboard, whoever put it there.
    void Clear();
    /// Puts a text there in place of all that was.
    void SetText(const QString& text);
    /// Puts a picture there at its natural size, upright, as an image that any program can paste, in place of
    /// all that was. An empty picture leaves nothing. Failure 481 when its data is damaged; the clipboard
    /// then stays.
    void SetPicture(const Picture& picture);
};

inline ClipboardObject Clipboard;

} // namespace torvik
