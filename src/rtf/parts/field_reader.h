#pragma once

#include "rtf/parts/document_state.h"
#include "rtf/parts/field_instruction.h"

#include <vector>

namespace torvik::rtf {

/// Reads fields: an instruction and the result that it last gave. Fields can be nested.
class FieldReader {
public:
    explicit FieldReader(DocumentState& document) : document_(document) {}

    /// Makes the group that is being read a field.
    void Begin();
    /// Where the text of an instruction goes.
    QString& Instruction() { return fields_.empty() ? document_.aside : fields_.back().instruction; }
    void EndInstruction();
    void BeginResult();
    /// Ends the innermost field. Returns the character that it stands for when it has no result; else
    /// nothing.
    QString End();

private:
    struct Field {
        QString instruction;
        FieldInstruction read;
        int link = 0;
        /// Length of the paragraph's text where the field began.
        qsizetype start = 0;
    };

    DocumentState& document_;
    std::vector<Field> fields_;
};

} // namespace torvik::rtf
