#include "TestSupport.h"

#include "ui/shell/DialogWithHelp.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/RecentFilesList.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>

using namespace tb;
using tb::test::Columns;
using tb::test::Fetch;
using tb::test::Row;

namespace {

QStringList visibleTexts(const QMenu &menu)
{
    QStringList texts;
    for (QAction *a : menu.actions()) {
        if (a->isVisible())
            texts << (a->isSeparator() ? QStringLiteral("-") : a->text());
    }
    return texts;
}

} // namespace

class TestRecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings settings(QSettings::NativeFormat, QSettings::UserScope, "Brenholt", "Torvanbridge");
        settings.clear();
    }

    void keepsSixNewestFirst()
    {
        QMenu menu;
        menu.addAction("&Exit");
        RecentFilesList list(&menu);
        QCOMPARE(visibleTexts(menu), QStringList{"&Exit"}); // no separator while empty
        for (int i = 1; i <= 8; ++i)
            list.add(QString("/films/f%1.tbf").arg(i));
        list.add("");
        list.add("   ");
        QCOMPARE(list.paths(), (QStringList{"/films/f8.tbf", "/films/f7.tbf", "/films/f6.tbf", "/films/f5.tbf",
                                            "/films/f4.tbf", "/films/f3.tbf"}));
        // A path listed already moves to the top.
        list.add("/films/f5.tbf");
        QCOMPARE(list.paths(), (QStringList{"/films/f5.tbf", "/films/f8.tbf", "/films/f7.tbf", "/films/f6.tbf",
                                            "/films/f4.tbf", "/films/f3.tbf"}));
        const QStringList texts = visibleTexts(menu);
        QCOMPARE(texts.size(), 8);
        QCOMPARE(texts.at(1), "-");
        QCOMPARE(texts.at(2), "&1 " + QDir::toNativeSeparators("/films/f5.tbf"));
        QCOMPARE(texts.at(7), "&6 " + QDir::toNativeSeparators("/films/f3.tbf"));
        list.add("/films/R&D.tbf");
        QVERIFY(visibleTexts(menu).at(2).endsWith("R&&D.tbf")); // no access key from the name
        QSignalSpy chosen(&list, &RecentFilesList::fileChosen);
        list.actions().at(1)->trigger();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.first().first().toString(), "/films/f5.tbf");
    }

    void savedAndLoaded()
    {
        QMenu menu;
        RecentFilesList list(&menu);
        list.add("/a.tbf");
        list.add("/b.tbf");
        QVERIFY(list.save());
        {
            QSettings settings(QSettings::NativeFormat, QSettings::UserScope, "Brenholt", "Torvanbridge");
            QCOMPARE(settings.value("MRUList/File1").toString(), "/b.tbf");
            QCOMPARE(settings.value("MRUList/File2").toString(), "/a.tbf");
            QVERIFY(!settings.contains("MRUList/File3"));
        }
        QMenu other;
        RecentFilesList again(&other);
        again.load();
        QCOMPARE(again.paths(), (QStringList{"/b.tbf", "/a.tbf"}));
        // A shorter list leaves no stale entries behind.
        again.clear();
        again.add("/c.tbf");
        QVERIFY(again.save());
        RecentFilesList third(&other);
        third.load();
        QCOMPARE(third.paths(), QStringList{"/c.tbf"});
    }

    // F1 anywhere in a dialog opens its page in the program's one help window; a
    // dialog without a page of its own opens nothing.
    void helpKeyInDialog_data()
    {
        QTest::addColumn<QString>("page");
        Row("page", "board.html");
        Row("none", "");
    }

    void helpKeyInDialog()
    {
        QFETCH(QString, page);
        DeleteProgramHelpWindow();
        DialogWithHelp dialog(page);
        auto *edit = new QLineEdit(&dialog);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_F1);
        QCOMPARE(ProgramHelpWindow() != nullptr, !page.isEmpty());
        if (!page.isEmpty())
            QCOMPARE(ProgramHelpWindow()->currentPage(), page);
        DeleteProgramHelpWindow();
    }
};

TB_TEST_MAIN(TestRecentFiles)
#include "tst_recentfiles.moc"
