#include "sample/files/rich_writer.h"

#include "sample/files/bare_writer.h"
#include "sample/files/late_writer.h"

namespace torvik::sample {

QByteArray WriteRichText(const RichDocument& document)
{
    switch (document.dialect) {
    case Dialect::Bare:
        return BareWriter(document).Write();
    case Dialect::Styled:
        return StyledWriter(document).Write();
    case Dialect::Late:
        break;
    }
    return LateWriter(document).Write();
}

} // namespace torvik::sample
