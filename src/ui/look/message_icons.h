#pragma once

#include <QIcon>
#include <QStyle>

namespace torvik {

/// The picture of a message box of that kind (one of the four SP_MessageBox...), sharp at any scale factor;
/// null for any other picture.
QIcon MessageIcon(QStyle::StandardPixmap kind);

} // namespace torvik
