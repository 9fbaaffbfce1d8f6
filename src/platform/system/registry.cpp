#include "platform/system/registry.h"

#include <algorithm>
#include <utility>

namespace torvik {

namespace {

RegistryQuery machinesRegistry;

/// The bytes from the last to the first, each without a leading zero: 0x0105 reads as 0x15, as it always has.
QString NumberOfBytes(QByteArray bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    QString digits;
    for (const char byte : bytes)
        digits += QString::number(static_cast<unsigned char>(byte), 16);
    return QString::number(digits.toULongLong(nullptr, 16));
}

} // namespace

void SetRegistry(RegistryQuery query)
{
    machinesRegistry = std::move(query);
}

bool ReadRegistryValue(std::uint32_t root, const QString& key, const QString& name, QString& result)
{
    const auto value = machinesRegistry ? machinesRegistry(root, key, name) : std::nullopt;
    if (!value || value->data.size() > registry::longestValue) {
        result.clear();
        return false;
    }
    QByteArray data = value->data;
    if (data.endsWith('\0'))
        data.chop(1);
    if (value->type == registry::text)
        result = QString::fromLocal8Bit(data);
    else if (value->type == registry::number)
        result = NumberOfBytes(data);
    return true;
}

} // namespace torvik
