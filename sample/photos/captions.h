#pragma once

#include "sample/photos/photo_plan.h"

namespace torvik::sample {

/// A small rich-text document: its file name and its whole text.
struct Caption {
    QString file;
    QByteArray text;
};

/// The caption of the photo; its file is the stem in lower case with ".rtf".
Caption CaptionOf(const PlannedPhoto& photo);
/// The notes that stand beside the captions: one for each photo of the topics that have notes, named after
/// twice the photo's number, and those of the art print.
std::vector<Caption> PlanNotes();

} // namespace torvik::sample
