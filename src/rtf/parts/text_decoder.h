#pragma once

#include "rtf/parts/document_state.h"
#include "rtf/parts/text_router.h"

#include <QString>

#include <string>
#include <string_view>

namespace torvik::rtf {

/// Turns the bytes and the character codes of a document into characters.
class TextDecoder {
public:
    TextDecoder(DocumentState& document, TextRouter& router) : document_(document), router_(router) {}

    /// Bytes of the code page that holds now. The halves of a character may come apart.
    void PutBytes(std::string_view bytes);
    /// A UTF-16 code unit as documents write it: above 32767 as a negative number. Its stand-in for older
    /// readers follows, and is to be passed over.
    void PutUnicode(int value);
    void PutCharacter(char16_t unit);
    void Put(const QString& text);
    /// Decodes bytes that wait for their other half.
    void FlushBytes();
    /// Replaces the first half of a surrogate pair whose second half does not come.
    void FlushHalfCharacter();
    void Flush();

    /// Whether the bytes so far, whole pairs among them, end in half a pair that `byte` completes.
    bool IsCompletedBy(char byte) const;

    /// Whether the stand-in of a Unicode character is being passed over.
    bool InStandIn() const { return standInLeft_ > 0; }
    void PassOneOfStandIn() { --standInLeft_; }
    void EndStandIn() { standInLeft_ = 0; }
    /// What is left of bytes when those of a stand-in are passed over.
    std::string_view WithoutStandIn(std::string_view bytes);

private:
    void PutUnknown();
    void CountPairs(std::string_view bytes);

    DocumentState& document_;
    TextRouter& router_;
    int standInLeft_ = 0;
    char16_t highSurrogate_ = 0;
    std::string pendingBytes_;
    int pendingPairs_ = 0;
    bool endsInHalf_ = false;
    QString scratch_;
};

} // namespace torvik::rtf
