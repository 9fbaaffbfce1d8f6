#pragma once

#include "rtf/bounds/budget.h"
#include "rtf/fields/bookmark_texts.h"
#include "rtf/model/color_table.h"
#include "rtf/model/font_table.h"
#include "rtf/model/list_table.h"
#include "rtf/model/page_measures.h"
#include "rtf/parts/group_state.h"
#include "rtf/picture/picture_store.h"
#include "rtf/picture/shape_picture.h"
#include "rtf/write/flow_collector.h"
#include "rtf/write/flow_writer.h"
#include "rtf/write/formats.h"

#include <QString>
#include <QTextCursor>

class QTextDocument;

namespace torvik::rtf {

/// What the readers of the single parts share: the group that is being read, the tables of the document, and
/// the document that is being written.
struct DocumentState {
    DocumentState(qint64 fileBytes, QTextDocument& into);
    DocumentState(const DocumentState&) = delete;
    DocumentState& operator=(const DocumentState&) = delete;

    /// Whether text goes into paragraphs now.
    bool IsBody() const;
    /// Where the text goes that is being read.
    BookmarkTexts::Place TextPlace() const { return {flow.BoxDepth(), flow.InNote()}; }

    GroupState group;
    /// The code page of text whose font names none, and the font of text that names none.
    int codePage = 1252;
    int defaultFont = 0;
    /// The short text that is being gathered for a table: a font's name, the pattern of a list's level, a
    /// bookmark's name.
    QString aside;

    PageMeasures page;
    /// How many paragraphs and cells have ended.
    int endedParagraphs = 0;
    /// Lines, rectangles and the like of the paragraph that is being read.
    std::vector<DrawnShape> drawings;
    /// Text of the paragraph came before them.
    bool drawingsComeAfter = false;

    FontTable fonts;
    ColorTable colors;
    ListTable lists;
    BookmarkTexts bookmarks;
    Formats formats;
    PictureStore pictures;
    Budget budget;

    QTextDocument& document;
    QTextCursor cursor;
    WritingContext context;
    FlowWriter body;
    FlowCollector flow;
};

} // namespace torvik::rtf
