#pragma once

#include "rtf/parts/character_looks.h"
#include "rtf/parts/document_state.h"
#include "rtf/picture/picture_source.h"

#include <QHash>

#include <string_view>

namespace torvik::rtf {

/// Reads pictures and puts them into the text.
class PictureReader {
public:
    PictureReader(DocumentState& document, CharacterLooks& looks) : document_(document), looks_(looks) {}

    void Begin();
    /// The picture that is being read.
    PictureSource& Source() { return source_; }
    /// Adds bytes that are written as hexadecimal digits; other characters are passed over.
    void AppendHex(std::string_view digits);
    void AppendBytes(std::string_view bytes);
    /// Ends the picture whose group had the state `ended`. Whether it is shown.
    bool End(const GroupState& ended);

    /// The group holds the better one of two forms of a picture.
    void BeginShape();
    bool ShapeWasShown() const { return shapeWasShown_; }
    void ForgetShape() { shapeWasShown_ = false; }

    /// Pictures that are in the text, and those of whose bytes nothing could be made.
    int Shown() const { return shown_; }
    int Lost() const { return lost_; }

private:
    /// The number of a picture that is shown, 0 where nothing can be made of its bytes.
    int NumberOf(const PictureSource& source);

    DocumentState& document_;
    CharacterLooks& looks_;
    PictureSource source_;
    /// The numbers of the pictures that were shown: one that comes again is the same. The bytes that are kept
    /// here are no more than those of the file.
    QHash<PictureSource, int> numbers_;
    /// Half a byte that waits for its other half, -1 for none.
    int halfByte_ = -1;
    bool shapeWasShown_ = false;
    int shown_ = 0;
    int lost_ = 0;
};

} // namespace torvik::rtf
