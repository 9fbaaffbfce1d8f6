#pragma once

#include "support/modal_visit.h"
#include "support/program.h"
#include "windows/article_window.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace torvik {

/// What a test class of Find begins with: the program on a disc of six photos a group with a few articles.
class FindFixture : public QObject {
    Q_OBJECT

protected:
    /// What an article looked like that a hit brought up.
    struct Seen {
        QString title;
        QStringList marked;
        QString bar;
        bool isFirstInView = false;

        static Seen Now();
    };

    void OpenForm();
    /// Opens the form on a disc that takes a while to be read.
    void OpenFormOnLongDisc();
    void WaitForEnd();
    /// Waits for the text that begins lblFound, of a disc that is read to its end.
    void WaitFor(const QString& text);
    /// Types words anew and waits for their answer from a disc that is read to its end.
    void Find(const QString& words);
    /// Types words anew, and rests.
    void Ask(const QString& words);

    static QString FirstLine();
    /// The rows as "title | line", found words in brackets.
    static QStringList Rows();
    static QStringList MarkedIn(const RichTextBox& box);

    /// Looks at the viewer that something brings up, and closes it.
    template <typename Opening>
    Seen VisitViewer(Opening&& opening)
    {
        Seen seen;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                seen = Seen::Now();
                program_->Click(txtForm->SSCommand1);
            },
            [] { txtForm.Unload(); });
        opening();
        program_->Settle();
        return seen;
    }

    std::unique_ptr<Program> program_;

private Q_SLOTS:
    void init();
    void cleanup() { program_.reset(); }
};

} // namespace torvik
