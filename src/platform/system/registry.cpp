#include "platform/system/registry.h"

namespace torvik {

namespace {

Registry& MachinesRegistry()
{
    static Registry registry;
    return registry;
}

Registry*& ReplacedRegistry()
{
    static Registry* registry = nullptr;
    return registry;
}

Registry& CurrentRegistry()
{
    return ReplacedRegistry() != nullptr ? *ReplacedRegistry() : MachinesRegistry();
}

/// The bytes from the last to the first, each without a leading zero: 0x0105 reads as 0x15, as it always has.
QString NumberOfBytes(const QByteArray& bytes)
{
    QString digits;
    for (auto byte = bytes.crbegin(); byte != bytes.crend(); ++byte)
        digits += QString::number(static_cast<unsigned char>(*byte), 16);
    return QString::number(digits.toULongLong(nullptr, 16));
}

/// A key that closes itself.
class OpenKey {
public:
    OpenKey(std::uint32_t root, const QString& key)
        : handle_(CurrentRegistry().OpenKey(root, key, registry::allAccess))
    {}
    ~OpenKey() { CurrentRegistry().CloseKey(handle_); }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    bool Query(const QString& name, RegistryValue& value) const
    {
        return handle_ != 0 && CurrentRegistry().QueryValue(handle_, name, value) &&
               value.Data.size() <= registry::longestValue;
    }

private:
    std::uint64_t handle_;
};

} // namespace

std::uint64_t Registry::OpenKey(std::uint32_t /*root*/, const QString& /*key*/, std::uint32_t /*access*/)
{
    return 0;
}

bool Registry::QueryValue(std::uint64_t /*key*/, const QString& /*name*/, RegistryValue& /*value*/)
{
    return false;
}

void Registry::CloseKey(std::uint64_t /*key*/) {}

void SetRegistry(Registry* registry)
{
    ReplacedRegistry() = registry;
}

bool ReadRegistryValue(std::uint32_t root, const QString& key, const QString& name, QString& result)
{
    const OpenKey open(root, key);
    RegistryValue value;
    if (!open.Query(name, value)) {
        result.clear();
        return false;
    }
    QByteArray data = value.Data;
    if (data.endsWith('\0'))
        data.chop(1);
    if (value.Type == registry::text)
        result = QString::fromLocal8Bit(data);
    else if (value.Type == registry::number)
        result = NumberOfBytes(data);
    return true;
}

} // namespace torvik
