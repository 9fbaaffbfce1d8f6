#pragma once

namespace torvik {

/// Puts the title in panYear on show: its code, the states of the buttons, and its first photo. Leaves
/// PhotoIndex on that photo. A photo that is missing or cannot be loaded is ER023 and hides Image4.
void SelectYear();

/// Gives the document buttons the states and the caption that a topic has: no article and no picture of a
/// year.
void FitButtonsToTopic();

/// SelectYear for a special topic, with the buttons and the cursor as a topic has them.
void ShowSpecialTopic();

} // namespace torvik
