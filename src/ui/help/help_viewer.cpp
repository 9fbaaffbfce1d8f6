#include "ui/help/help_viewer.h"

#include "ui/desktop/shell_execute.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int anchorRole = Qt::UserRole;
constexpr QSize usualSize{860, 600}; // pixels
constexpr QSize frame{20, 48};       // as much as desktops draw around a window
constexpr int contentsWidth = 230;

} // namespace

HelpViewer::HelpViewer(QTextDocument* document)
    : text_(new QTextBrowser), contents_(new QTreeWidget), search_(new QLineEdit), found_(new QLabel),
      home_(MakeButton(u"HelpHome"_s, u"&Contents"_s)), back_(MakeButton(u"HelpBack"_s, u"&Back"_s)),
      forward_(MakeButton(u"HelpForward"_s, u"&Forward"_s)), find_(MakeButton(u"HelpFind"_s, u"Find &next"_s))
{
    setObjectName(u"HelpViewer"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Help - The Torvik Vollandry 2001"_s);
    setAccessibleName(windowTitle());
    resize(usualSize.boundedTo(screen()->availableSize() - frame));
    LayOut();

    document->setParent(text_);
    text_->setDocument(document);
    text_->setOpenLinks(false);
    topics_ = TopicsOf(*document);
    FillContents();
    TakeKeys();

    connect(home_, &QPushButton::clicked, this, [this] {
        if (!topics_.empty())
            GoTo(topics_.front().anchor);
    });
    connect(back_, &QPushButton::clicked, this, [this] { StepHistory(-1); });
    connect(forward_, &QPushButton::clicked, this, [this] { StepHistory(1); });
    connect(find_, &QPushButton::clicked, this, &HelpViewer::FindNext);
    connect(search_, &QLineEdit::returnPressed, this, &HelpViewer::FindNext);
    connect(search_, &QLineEdit::textChanged, found_, &QLabel::clear);
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { FollowLink(link.toString()); });
    connect(contents_, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { GoTo(item->data(0, anchorRole).toString()); });
    connect(contents_, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* item) { GoTo(item->data(0, anchorRole).toString()); });

    if (!topics_.empty())
        GoTo(topics_.front().anchor);
    contents_->setFocus();
}

QPushButton* HelpViewer::MakeButton(const QString& name, const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(QString(caption).remove(u'&'));
    button->setAutoDefault(false);
    return button;
}

void HelpViewer::LayOut()
{
    text_->setObjectName(u"HelpText"_s);
    text_->setAccessibleName(u"Help text"_s);
    contents_->setObjectName(u"HelpContents"_s);
    contents_->setAccessibleName(u"Topics"_s);
    contents_->header()->hide();
    search_->setObjectName(u"HelpSearch"_s);
    search_->setAccessibleName(u"Search"_s);
    search_->setPlaceholderText(u"Search the help"_s);
    search_->setClearButtonEnabled(true);
    found_->setObjectName(u"HelpFound"_s);

    auto* bar = new QHBoxLayout;
    for (QPushButton* button : {home_, back_, forward_})
        bar->addWidget(button);
    bar->addStretch();
    bar->addWidget(found_);
    bar->addWidget(search_);
    bar->addWidget(find_);

    auto* panes = new QSplitter;
    panes->addWidget(contents_);
    panes->addWidget(text_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({contentsWidth, width() - contentsWidth});
    panes->setChildrenCollapsible(false);

    auto* whole = new QVBoxLayout(this);
    whole->addLayout(bar);
    whole->addWidget(panes, 1);
}

void HelpViewer::FillContents()
{
    QTreeWidgetItem* chapter = nullptr;
    for (const HelpTopic& topic : topics_) {
        const bool isInside = topic.level > 1 && chapter != nullptr;
        auto* item = isInside ? new QTreeWidgetItem(chapter) : new QTreeWidgetItem(contents_);
        item->setText(0, topic.title);
        item->setData(0, anchorRole, topic.anchor);
        if (!isInside)
            chapter = item;
    }
    contents_->expandAll();
}

const HelpTopic* HelpViewer::TopicOf(const QString& anchor) const
{
    const auto found = std::find_if(topics_.begin(), topics_.end(),
                                    [&](const HelpTopic& topic) { return topic.anchor == anchor; });
    return found == topics_.end() ? nullptr : &*found;
}

/// What had been visited after this place is given up, as browsers do.
void HelpViewer::GoTo(const QString& anchor)
{
    if (TopicOf(anchor) == nullptr)
        return;
    if (here_ >= 0) {
        history_[static_cast<std::size_t>(here_)].scroll = text_->verticalScrollBar()->value();
        history_.resize(static_cast<std::size_t>(here_) + 1);
    }
    history_.push_back({anchor});
    here_ = static_cast<int>(history_.size()) - 1;
    ShowPlace(anchor);
    history_.back().scroll = text_->verticalScrollBar()->value();
}

void HelpViewer::StepHistory(int by)
{
    const int next = here_ + by;
    if (next < 0 || next >= static_cast<int>(history_.size()))
        return;
    history_[static_cast<std::size_t>(here_)].scroll = text_->verticalScrollBar()->value();
    here_ = next;
    const Visit visit = history_[static_cast<std::size_t>(here_)];
    ShowPlace(visit.anchor);
    text_->verticalScrollBar()->setValue(visit.scroll);
}

void HelpViewer::ShowPlace(const QString& anchor)
{
    text_->scrollToAnchor(anchor);
    back_->setEnabled(here_ > 0);
    forward_->setEnabled(here_ + 1 < static_cast<int>(history_.size()));
    for (QTreeWidgetItemIterator item(contents_); *item != nullptr; ++item) {
        if ((*item)->data(0, anchorRole).toString() == anchor)
            contents_->setCurrentItem(*item);
    }
}

/// From where the last search stopped, and round from the end to the beginning.
void HelpViewer::FindNext()
{
    const QString words = search_->text().trimmed();
    if (words.isEmpty())
        return;
    const QTextCursor before = text_->textCursor();
    bool isFound = text_->find(words);
    if (!isFound) {
        text_->moveCursor(QTextCursor::Start);
        isFound = text_->find(words);
    }
    if (!isFound)
        text_->setTextCursor(before);
    found_->setText(isFound ? QString() : u"Not found"_s);
}

void HelpViewer::FollowLink(const QString& address)
{
    if (address.startsWith(u'#'))
        GoTo(address.mid(1));
    else
        ShellExecute(address);
}

/// As shortcuts of the whole window: the text, the tree and the buttons take the arrow keys for themselves,
/// held Alt or not.
void HelpViewer::TakeKeys()
{
    const auto take = [this](QKeySequence::StandardKey key, auto&& action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    take(QKeySequence::Cancel, [this] { close(); });
    take(QKeySequence::Back, [this] { StepHistory(-1); });
    take(QKeySequence::Forward, [this] { StepHistory(1); });
    take(QKeySequence::Find, [this] { search_->setFocus(); });
    take(QKeySequence::FindNext, [this] { FindNext(); });
}

} // namespace torvik
