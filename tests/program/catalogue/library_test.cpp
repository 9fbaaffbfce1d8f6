#include "program/catalogue/library.h"
#include "support/browsing_fixture.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// As it stands on the screen, "Literature > Torvik Books", by the name of the entry.
void CollectWays(const QList<QAction*>& entries, const QString& before, QHash<QString, QString>& ways)
{
    for (const QAction* entry : entries) {
        const QString way = before + entry->text().replace(u"&&"_s, u"&"_s);
        ways[entry->objectName()] = way;
        if (entry->menu() != nullptr)
            CollectWays(entry->menu()->actions(), way + u" > "_s, ways);
    }
}

} // namespace

/// The documents that are the same for every year.
class LibraryTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void each_document_tells_where_its_menu_entry_is_found()
    {
        QHash<QString, QString> ways;
        CollectWays(Form1->Window().findChild<QMenuBar*>()->actions(), {}, ways);
        int reachable = 0;
        for (const LibraryDocument& document : LibraryDocuments()) {
            QCOMPARE(QString::fromLatin1(document.screen), ways.value(QString::fromLatin1(document.entry)));
            reachable += *document.screen != '\0' ? 1 : 0;
        }
        QCOMPARE(reachable, 20);
    }

    void a_name_that_no_entry_has_leads_to_no_document()
    {
        for (const char* name : {"mnuMag(6)", "mnuMag(0)", "mnuPR(4)", "mnuFile", ""})
            QCOMPARE(LibraryDocumentOf(QString::fromLatin1(name)), nullptr);
    }
};

TORVIK_TEST(LibraryTest)
#include "library_test.moc"
