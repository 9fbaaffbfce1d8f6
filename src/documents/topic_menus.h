#pragma once

namespace torvik {

/// Show the topic of a menu entry by its index. An index that no entry has: 3 is the third art print, 2 to 4
/// are the Kestra and Super Stallion topics; any other leaves the title as it is.
void ShowArtTopic(int index);
void ShowStuffTopic(int index);
void ShowSpecialtyTopic(int index);

/// Two topics that no menu entry reaches.
void ShowCalendars();
void ShowCollectorPlates();

} // namespace torvik
