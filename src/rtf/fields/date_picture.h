#pragma once

#include <QDateTime>
#include <QString>

namespace torvik::rtf {

/// A time written after a picture such as "d MMMM yyyy" or "h:mm am/pm", with English names.
QString DateByPicture(const QDateTime& time, const QString& picture);

} // namespace torvik::rtf
