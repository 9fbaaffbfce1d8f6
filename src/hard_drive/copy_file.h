#pragma once

#include <QString>

namespace torvik {

class Panel;

/// Copies `state.CopySource` to `state.CopyTarget` in blocks of 25,000 bytes, replacing what is there. After
/// each block both gauges of the copy panel and the text over them follow and pending events run; what is
/// left over at the end of the file counts in neither gauge. A failure is shown in a plain message with the
/// run time's own text, and the copy ends there.
void CopyFileWithGauges();

/// Copies `source` to `target` in blocks of 1,000 bytes, replacing what is there. After each block `gauge`
/// shows the percentage and pending events run. A failure is shown as above.
void CopyFileWithGauge(const QString& source, const QString& target, Panel& gauge);

} // namespace torvik
