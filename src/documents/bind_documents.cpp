#include "documents/bind_documents.h"

namespace torvik {

void BindDocuments()
{
    BindTopicMenus();
    BindBooksAndMagazines();
    BindYearArticles();
    BindYearStatistics();
    BindArticleViewer();
    BindFindInArticle();
    BindPageViewer();
    BindAdvertisement();
}

} // namespace torvik
