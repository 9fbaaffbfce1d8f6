#pragma once

#include "ui/forms/units.h"

class QWidget;

namespace torvik {

class Form;

/// What controls can lie on: a form, a frame, a panel, a picture box.
class Container {
public:
    virtual ~Container() = default;

    virtual QWidget& Host() = 0;         ///< the widget that the controls become children of
    virtual Scale ScaleMode() const = 0; ///< the unit in which those controls are measured
    virtual Form& OwnerForm() = 0;

    /// Twips to one unit of this container.
    double TwipsPerUnit() const { return ScaleMode() == Scale::Pixels ? twipsPerPixel : 1; }

protected:
    Container() = default;
};

} // namespace torvik
