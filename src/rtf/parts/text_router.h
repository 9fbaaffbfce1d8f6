#pragma once

#include "rtf/parts/character_looks.h"
#include "rtf/parts/document_state.h"
#include "rtf/parts/field_reader.h"
#include "rtf/parts/font_reader.h"
#include "rtf/parts/paragraph_reader.h"

#include <QString>

#include <string_view>

namespace torvik::rtf {

/// Puts decoded text where it belongs: into the paragraph, or aside for what the group stands for.
class TextRouter {
public:
    TextRouter(DocumentState& document, CharacterLooks& looks, FontReader& fonts, FieldReader& fields,
               ParagraphReader& paragraphs)
        : document_(document), looks_(looks), fonts_(fonts), fields_(fields), paragraphs_(paragraphs)
    {}

    void Put(const QString& text);
    /// Decodes bytes straight into the paragraph, which is how most of a document is read. False, and nothing
    /// done, where they need more care.
    bool PutPlainBytes(std::string_view bytes);

private:
    QString* AsideText();
    void PutLetterByLetter(const QString& text);

    DocumentState& document_;
    CharacterLooks& looks_;
    FontReader& fonts_;
    FieldReader& fields_;
    ParagraphReader& paragraphs_;
};

} // namespace torvik::rtf
