#pragma once

#include "ui/help/help_topics.h"

#include <QString>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTextDocument;
class QTreeWidget;
class QTreeWidgetItem;

namespace torvik {

/// A window that shows a help file: its topics at the left, its text at the right, and above them the way
/// back and forward and a search. Escape closes it. It is no form of the program: it stands beside them and
/// takes its own input. The parts are named HelpContents, HelpText, HelpHome, HelpBack, HelpForward,
/// HelpSearch, HelpFind and HelpFound.
class HelpViewer : public QWidget {
public:
    /// `document` becomes the window's own.
    explicit HelpViewer(QTextDocument* document);

    /// Goes to a topic by its bookmark, as a step that Back takes back. An unknown one changes nothing.
    void GoTo(const QString& anchor);

private:
    /// A place that was visited, and how far down the text was when it was left.
    struct Visit {
        QString anchor;
        int scroll = 0;
    };

    QPushButton* MakeButton(const QString& name, const QString& caption);
    void LayOut();
    void FillContents();
    void TakeKeys();
    void StepHistory(int by);
    void ShowPlace(const QString& anchor);
    void FindNext();
    void FollowLink(const QString& address);
    const HelpTopic* TopicOf(const QString& anchor) const;

    QTextBrowser* text_;
    QTreeWidget* contents_;
    QLineEdit* search_;
    QLabel* found_;
    QPushButton* home_;
    QPushButton* back_;
    QPushButton* forward_;
    QPushButton* find_;
    std::vector<HelpTopic> topics_;
    std::vector<Visit> history_;
    int here_ = -1;
};

} // namespace torvik
