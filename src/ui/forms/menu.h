#pragma once

#include "ui/forms/event.h"

#include <QObject>
#include <QString>

class QAction;

namespace torvik {

class Form;

/// An entry of a form's menu bar or of another entry, which thereby becomes a submenu. The caption "-" makes
/// a separator line; an ampersand marks the next letter as the mnemonic, a doubled one shows as one.
class Menu : public QObject {
public:
    Menu(Form& form, const QString& name, const QString& caption);
    Menu(Menu& parent, const QString& name, const QString& caption);

    QString Name() const;
    QString Caption() const;
    void SetCaption(const QString& caption);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Visible() const;
    void SetVisible(bool visible);

    Event<> Click;

private:
    void Triggered();

    QAction* action_;
};

} // namespace torvik
