#pragma once

#include "rtf/fields/field_instruction.h"
#include "rtf/fields/field_result.h"
#include "rtf/parts/document_state.h"

#include <vector>

namespace torvik::rtf {

/// Reads fields: an instruction and the result that it last gave. Fields can be nested.
class FieldReader {
public:
    explicit FieldReader(DocumentState& document) : document_(document), surroundings_(document.bookmarks) {}

    /// Makes the group that is being read a field.
    void Begin();
    /// Where the text of an instruction goes.
    QString& Instruction() { return fields_.empty() ? document_.aside : fields_.back().instruction; }
    void EndInstruction();
    /// Whether the innermost field is part of the instruction of another one.
    bool IsInside() const { return !fields_.empty() && fields_.back().isInside; }
    void BeginResult();
    /// Where the result of such a field goes.
    QString& Value() { return fields_.empty() ? document_.aside : fields_.back().value; }
    /// What comes next in an instruction, or in the result of a field within one, is a line of its own.
    void BeginLine();
    FormField& Form() { return fields_.empty() ? noForm_ : fields_.back().form; }
    /// Ends the innermost field. Returns the text that it stands for when it has no result; else nothing.
    QString End();
    /// The text of a field that comes without a group, empty where no text is shown.
    QString TextOf(const QString& instruction);
    /// The text from here on is that of a bookmark, which fields may repeat.
    void BeginBookmark(const QString& name);
    void EndBookmark(const QString& name);
    FieldSurroundings& Surroundings() { return surroundings_; }

private:
    struct Field {
        QString instruction;
        FieldInstruction read;
        FormField form;
        QString value;
        bool isInside = false;
        /// A result is stored, if only an empty one.
        bool hasResult = false;
        int link = 0;
        /// Length of the paragraph's text where the field began.
        qsizetype start = 0;
        /// How many paragraphs had ended then.
        int startParagraphs = 0;
    };
    bool HasResult(const Field& field) const;
    void HandOut(const QString& value);
    void LookAround();

    DocumentState& document_;
    std::vector<Field> fields_;
    FieldSurroundings surroundings_;
    FormField noForm_;
};

} // namespace torvik::rtf
