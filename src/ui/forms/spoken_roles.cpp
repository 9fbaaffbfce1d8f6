#include "ui/forms/spoken_roles.h"

#include "ui/forms/form_window.h"
#include "ui/look/group_widget.h"
#include "ui/look/panel_widget.h"

#include <QAccessibleWidget>

namespace torvik {

namespace {

/// Something that says its name and what lies in it.
class SpokenWidget : public QAccessibleWidget {
public:
    SpokenWidget(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}
};

/// A panel becomes a gauge or a container only after a screen reader may have met it, so it is asked each
/// time.
class SpokenPanel : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SpokenPanel(PanelWidget& panel) : QAccessibleWidget(&panel), panel_(panel) {}

    QAccessible::Role role() const override
    {
        if (panel_.IsGauge())
            return QAccessible::ProgressBar;
        const bool carries = panel_.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
        return carries ? QAccessible::Grouping : QAccessible::StaticText;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && panel_.IsGauge())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return panel_.Flood(); }
    void setCurrentValue(const QVariant& /*value*/) override {} // nobody fills a gauge from outside
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumStepSize() const override { return 1; }

private:
    PanelWidget& panel_;
};

/// Null where Qt's own answer is right.
QAccessibleInterface* Speaking(const QString& /*className*/, QObject* object)
{
    if (auto* panel = dynamic_cast<PanelWidget*>(object))
        return new SpokenPanel(*panel);
    if (auto* group = dynamic_cast<GroupWidget*>(object))
        return new SpokenWidget(group, QAccessible::Grouping);
    if (auto* window = dynamic_cast<FormWindow*>(object))
        return new SpokenWidget(window, QAccessible::Window);
    return nullptr;
}

} // namespace

void InstallSpokenRoles()
{
    QAccessible::installFactory(Speaking);
}

} // namespace torvik
