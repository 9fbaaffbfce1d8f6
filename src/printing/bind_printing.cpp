#include "printing/bind_printing.h"

namespace torvik {

void BindPrinting()
{
    BindBookletPanelButtons();
    BindPrintPhotoAndSetup();
}

} // namespace torvik
