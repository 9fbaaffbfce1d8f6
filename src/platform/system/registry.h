#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace torvik {

/// Numbers of the registry, as Windows has them.
namespace registry {
inline constexpr std::uint32_t localMachine = 0x80000002; ///< the root HKLM
inline constexpr int text = 1;                            ///< the type REG_SZ
inline constexpr int number = 4;                          ///< the type REG_DWORD
inline constexpr int longestValue = 1024;                 ///< bytes that a query takes
} // namespace registry

/// A value as the registry delivers it: a text may come with a closing zero, a number from its lowest byte
/// on.
struct RegistryValue {
    int type = 0;
    QByteArray data;
};

/// Reads a value of a key. The key is opened for reading and writing (0x2003F), so one that may only be read
/// counts as missing. Nothing when the key does not open or has no such value.
using RegistryQuery =
    std::function<std::optional<RegistryValue>(std::uint32_t root, const QString& key, const QString& name)>;

/// Gives the machine a registry; an empty function stands for a system without any, as at the start.
void SetRegistry(RegistryQuery query);

/// Reads a text or a number, as decimal text, into `result`. False with an empty result when the key or value
/// cannot be read or is longer than `longestValue`; true with the result as it was for a value of another
/// type.
bool ReadRegistryValue(std::uint32_t root, const QString& key, const QString& name, QString& result);

} // namespace torvik
