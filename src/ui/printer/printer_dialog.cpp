#include "ui/printer/printer_dialog.h"

#include "ui/forms/program_end.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

PrinterResponder& Responder()
{
    static PrinterResponder responder;
    return responder;
}

/// The widgets of the dialog.
class SetupDialog : public QDialog {
public:
    SetupDialog(const PrinterSetup& present, const QList<PrinterOption>& choices)
        : QDialog(QApplication::activeWindow()), choices_(choices)
    {
        setObjectName(u"PrinterDialog"_s);
        setWindowTitle(u"Print Setup"_s);
        setAccessibleName(windowTitle());
        auto* orientation = new QHBoxLayout;
        orientation->addWidget(&portrait_);
        orientation->addWidget(&landscape_);
        orientation->addStretch();
        auto* rows = new QFormLayout(this);
        rows->setSizeConstraint(QLayout::SetFixedSize);
        rows->addRow(u"Printer:"_s, Named(printer_, "Printer"));
        rows->addRow(u"Paper:"_s, Named(paper_, "Paper"));
        rows->addRow(u"Orientation:"_s, orientation);
        rows->addRow(&buttons_);
        Named(portrait_, "Portrait");
        Named(landscape_, "Landscape");
        for (const auto& [button, name] :
             {std::pair(QDialogButtonBox::Ok, "OK"), std::pair(QDialogButtonBox::Cancel, "Cancel")}) {
            buttons_.button(button)->setText(QString::fromLatin1(name));
            buttons_.button(button)->setObjectName(QString::fromLatin1(name));
        }
        connect(&printer_, &QComboBox::currentIndexChanged, this, [this] { ListPapers(Paper()); });
        connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
        Present(present);
    }

    PrinterSetup Chosen() const
    {
        return {Option().name, Paper(),
                landscape_.isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait};
    }

private:
    template <typename Widget>
    static Widget* Named(Widget& widget, const char* name)
    {
        widget.setObjectName(QString::fromLatin1(name));
        widget.setAccessibleName(QString::fromLatin1(name));
        return &widget;
    }

    const PrinterOption& Option() const { return choices_.at(std::max(0, printer_.currentIndex())); }

    QPageSize Paper() const
    {
        return paper_.currentIndex() < 0 ? QPageSize() : papers_.at(paper_.currentIndex());
    }

    void Present(const PrinterSetup& present)
    {
        for (const PrinterOption& option : choices_)
            printer_.addItem(option.title);
        for (qsizetype index = 0; index < choices_.size(); ++index) {
            if (choices_.at(index).name == present.name)
                printer_.setCurrentIndex(static_cast<int>(index));
        }
        ListPapers(present.paper);
        (present.orientation == QPageLayout::Landscape ? landscape_ : portrait_).setChecked(true);
    }

    /// A paper that another printer has as well stays chosen.
    void ListPapers(const QPageSize& wanted)
    {
        papers_ = Option().papers;
        paper_.clear();
        for (const QPageSize& paper : papers_)
            paper_.addItem(paper.name());
        for (qsizetype index = 0; index < papers_.size(); ++index) {
            if (papers_.at(index).isEquivalentTo(wanted))
                paper_.setCurrentIndex(static_cast<int>(index));
        }
    }

    QList<PrinterOption> choices_;
    QList<QPageSize> papers_; ///< as listed
    QComboBox printer_;
    QComboBox paper_;
    QRadioButton portrait_{u"Portrait"_s};
    QRadioButton landscape_{u"Landscape"_s};
    QDialogButtonBox buttons_{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
};

std::optional<PrinterSetup> Ask(const PrinterSetup& present, const QList<PrinterOption>& choices)
{
    SetupDialog dialog(present, choices);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Chosen();
}

} // namespace

std::optional<PrinterSetup> AskForPrinter(const PrinterSetup& present, const QList<PrinterOption>& choices)
{
    auto chosen = Responder() ? Responder()(present, choices) : Ask(present, choices);
    LeaveIfEnding();
    return chosen;
}

void SetPrinterResponder(PrinterResponder responder)
{
    Responder() = std::move(responder);
}

} // namespace torvik
