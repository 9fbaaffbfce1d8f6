#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace torvik {

/// A pattern of file names: `*` stands for any characters or none, `?` for exactly one, letter case is
/// ignored.
/// "*.*" matches every name, also one without a point.
class NamePattern {
public:
    explicit NamePattern(QStringView pattern);

    bool Matches(std::string_view hostName) const;
    /// Whether a text contains `*` or `?`.
    static bool HasWildcards(QStringView text);

private:
    std::u32string pattern_;
};

} // namespace torvik
