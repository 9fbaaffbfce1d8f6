#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace torvik {

/// Numbers of the registry, as the platform has them.
namespace registry {
inline constexpr std::uint32_t localMachine = 0x80000002; ///< the root HKLM
inline constexpr std::uint32_t allAccess = 0x2003F;       ///< reading and writing
inline constexpr int text = 1;                            ///< the type REG_SZ
inline constexpr int number = 4;                          ///< the type REG_DWORD
inline constexpr int longestValue = 1024;                 ///< bytes that a query takes
} // namespace registry

/// A value as the registry delivers it: a text may come with a closing zero, a number from its lowest byte
/// on.
struct RegistryValue {
    int Type = 0;
    QByteArray Data;
};

/// The machine's registry. This one is that of a system without any: no key opens.
class Registry {
public:
    virtual ~Registry() = default;

    /// Opens a key and returns its handle; 0 when that fails.
    virtual std::uint64_t OpenKey(std::uint32_t root, const QString& key, std::uint32_t access);
    /// Reads a value of an open key; false when there is none or it is longer than `longestValue`.
    virtual bool QueryValue(std::uint64_t key, const QString& name, RegistryValue& value);
    /// Closes a key; the handle 0 does nothing.
    virtual void CloseKey(std::uint64_t key);
};

/// Puts another registry in place of the machine's, for the tests; null brings the machine's back.
void SetRegistry(Registry* registry);

/// Reads a text or a number, as decimal text, into `result`. It asks for write access as well, so a key that
/// may only be read counts as missing. False with an empty result when the key or value cannot be read; true
/// with the result as it was for a value of another type.
bool ReadRegistryValue(std::uint32_t root, const QString& key, const QString& name, QString& result);

} // namespace torvik
