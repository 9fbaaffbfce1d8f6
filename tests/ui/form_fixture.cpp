#include "ui/form_fixture.h"

namespace torvik {

void FormFixture::init()
{
    room_ = std::make_unique<UiRoom>();
    QVERIFY(UiRoom::Open(form_()));
}

} // namespace torvik
