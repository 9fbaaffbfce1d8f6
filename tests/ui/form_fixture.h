#pragma once

#include "support/ui_room.h"

#include <QObject>

#include <functional>
#include <memory>

namespace torvik {

/// What a test class of one form begins with: that form on the screen, taking input.
class FormFixture : public QObject {
    Q_OBJECT

protected:
    template <typename Controls>
    explicit FormFixture(FormHandle<Controls>& form) : form_([&form]() -> Form& { return *form; })
    {}

private Q_SLOTS:
    void init();
    void cleanup() { room_.reset(); }

private:
    std::function<Form&()> form_;
    std::unique_ptr<UiRoom> room_;
};

} // namespace torvik
