#pragma once

#include "check/examine_file.h"

namespace torvik {

/// Reads rich text with its pictures.
Examination ExamineArticle(const QByteArray& bytes);

} // namespace torvik
