#pragma once

namespace torvik {

/// When `state.ClipboardRequest` is 2, asks whether to copy, and on Yes empties the clipboard and puts there
/// what the screen's active control holds: the selected text of a text box, the text of a combo box or list
/// box, the picture of a picture box or image. Any other control leaves the clipboard empty.
void CopyToClipboard();

} // namespace torvik
