#include "ui/forms/menu.h"

#include "runtime/failure.h"
#include "ui/forms/disabled_input.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QAction* MakeAction(const QString& name, const QString& caption, QWidget* owner)
{
    auto* action = new QAction(caption, owner);
    action->setObjectName(name);
    action->setSeparator(caption == u"-"_s);
    action->setMenuRole(QAction::NoRole); // no desktop moves an entry to a place of its own
    return action;
}

/// A screen reader can open a menu behind a modal window. It would take all input of the program and obey
/// none.
void CloseWhereBlocked(QMenu* menu)
{
    if (!TakesInput(*menu->parentWidget()))
        QMetaObject::invokeMethod(menu, &QMenu::hide, Qt::QueuedConnection); // it is not open yet
}

/// The menu that opens from an action; made when the first entry needs it.
QMenu* MenuOf(QAction* action)
{
    if (action->menu() == nullptr) {
        auto* menu = new QMenu(qobject_cast<QWidget*>(action->parent()));
        QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { CloseWhereBlocked(menu); });
        action->setMenu(menu);
    }
    return action->menu();
}

} // namespace

Menu::Menu(Form& form, const QString& name, const QString& caption)
{
    QMenuBar* bar = form.Window().MenuBar();
    if (bar == nullptr)
        Fail(failure::invalidCall);
    action_ = MakeAction(name, caption, bar);
    bar->addAction(action_);
    connect(action_, &QAction::triggered, this, &Menu::Triggered);
}

Menu::Menu(Menu& parent, const QString& name, const QString& caption)
{
    QMenu* menu = MenuOf(parent.action_);
    action_ = MakeAction(name, caption, menu);
    menu->addAction(action_);
    connect(action_, &QAction::triggered, this, &Menu::Triggered);
}

void Menu::Triggered()
{
    if (TakesInput(*qobject_cast<QWidget*>(action_->parent())))
        Click.Fire();
}

QString Menu::Name() const
{
    return action_->objectName();
}

QString Menu::Caption() const
{
    return action_->text();
}

void Menu::SetCaption(const QString& caption)
{
    action_->setText(caption);
}

bool Menu::Enabled() const
{
    return action_->isEnabled();
}

void Menu::SetEnabled(bool enabled)
{
    action_->setEnabled(enabled);
}

bool Menu::Visible() const
{
    return action_->isVisible();
}

void Menu::SetVisible(bool visible)
{
    action_->setVisible(visible);
}

} // namespace torvik
