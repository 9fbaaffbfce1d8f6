#pragma once

namespace torvik {

/// Ties all handlers of this room to their controls; once, before the first form is touched.
void BindDocuments();

// The parts of it, each at the end of the file of its handlers.
/// Ties the entries of the Artwork, Torvik Stuff and Specialty menus to their topics.
void BindTopicMenus();
/// Ties the entries of the Literature, Miscellaneous and Help menus to their documents.
void BindBooksAndMagazines();
/// Ties cmdDesc, cmdColors, cmdOptions and cmdNostalgia to the articles of the year or topic on show.
void BindYearArticles();
/// Ties cmdStats to the statistics of the year or topic on show, which is an article in the viewer or a note
/// of the photo in rtbDetails, and rtbDetails to its own click.
void BindYearStatistics();
/// Ties the viewer's Load, activation and buttons to their handlers.
void BindArticleViewer();
/// Ties the bar of the viewer that finds words in the text on show, and the keys that open and work it.
void BindFindInArticle();
/// Ties frmScroll to its handlers: layout, scrolling, both views, closing.
void BindPageViewer();
/// Ties cmdAd to the advertisement of the year, which it shows in frmScroll over the whole screen.
void BindAdvertisement();

} // namespace torvik
