#pragma once

namespace torvik {

/// Has screen readers told what our own widgets are where Qt takes them for plain labels or nothing
/// at all: a form's window, a gauge with its value, and what groups other controls. Asked again it does
/// nothing.
void InstallSpokenRoles();

} // namespace torvik
