#pragma once

#include <QTextFormat>

namespace torvik::rtf {

/// True in the block format of a paragraph that is to stand on one page. Qt has nothing
/// like it: lines that it calls unbreakable are never wrapped.
inline constexpr int keepTogetherProperty = QTextFormat::UserProperty + 1;
/// The same of one that is to end on the page on which the next one begins.
inline constexpr int keepWithNextProperty = QTextFormat::UserProperty + 5;

} // namespace torvik::rtf
