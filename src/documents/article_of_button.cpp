#include "documents/article_of_button.h"

#include "platform/files/files.h"
#include "program/program_state.h"
#include "windows/main_window.h"

namespace torvik {

QString FindArticle(ArticleButton button)
{
    const Article article = ArticleOf(button, Form1->panYear.Caption());
    state.DocumentFile = FindFile(state.DiscRoot + article.file);
    if (!state.DocumentFile.isEmpty())
        state.DocumentFile = state.DiscRoot + ArticleFolder(button) + state.DocumentFile;
    return article.windowTitle;
}

} // namespace torvik
