#pragma once

namespace torvik {

class Form;

/// Flags of SetFormTopmost.
namespace topmost {
inline constexpr int on = -1;
inline constexpr int off = 0;
} // namespace topmost

/// Keeps a form above all other windows (-1), takes it off that list (0), or, with any other flag, only
/// brings it to the front. Place and size stay. A desktop that does not allow it changes nothing.
void SetFormTopmost(Form& form, int flag);

} // namespace torvik
