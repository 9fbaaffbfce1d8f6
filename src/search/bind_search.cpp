#include "search/bind_search.h"

namespace torvik {

void BindSearch()
{
    BindFindForm();
}

} // namespace torvik
