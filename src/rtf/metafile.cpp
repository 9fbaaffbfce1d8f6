#include "rtf/metafile.h"
namespace torvik::rtf {
MetafileImage DrawWmf(std::string_view, const QSizeF&, qint64)
{
    return {};
}
MetafileImage DrawEmf(std::string_view, const QSizeF&, qint64)
{
    return {};
}
} // namespace torvik::rtf
