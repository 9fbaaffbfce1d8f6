#pragma once

#include <QColor>

#include <vector>

namespace torvik::rtf {

/// The colours of a document by number. An entry without values is the "automatic" colour: none.
class ColorTable {
public:
    /// Sets one part of the entry that is being read; values outside 0 to 255 are brought inside.
    void SetRed(int value);
    void SetGreen(int value);
    void SetBlue(int value);
    /// Ends the entry that is being read.
    void EndEntry();
    /// The colour with a number; an invalid colour where there is none or it is automatic.
    QColor At(int index) const;
    /// The same for backgrounds, patterns and lines, where 0 chooses no colour: the oldest writers begin the
    /// table with black in place of the automatic colour.
    QColor ChosenAt(int index) const { return index > 0 ? At(index) : QColor(); }

private:
    std::vector<QRgb> entries_;
    int red_ = 0;
    int green_ = 0;
    int blue_ = 0;
    bool named_ = false;
};

/// The colour that a pattern of `percent` hundredths of a percent (0 to 10000) of `front` on `back` gives to
/// the eye. Automatic colours are black in front and white behind. Invalid where there is nothing to show.
QColor ShadedColor(const QColor& front, const QColor& back, int percent);

} // namespace torvik::rtf
