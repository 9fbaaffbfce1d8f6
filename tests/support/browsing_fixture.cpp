#include "support/browsing_fixture.h"

using namespace Qt::StringLiterals;

namespace torvik {

void BrowsingFixture::init()
{
    program_ = std::make_unique<Program>();
    program_->disc.AddGroup(u"67"_s, 2);
    program_->StartBrowsing();
}

void BrowsingFixture::cleanup()
{
    program_.reset();
}

} // namespace torvik
