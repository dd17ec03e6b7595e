#include "TestSupport.h"

#include "app/CommandHost.h"
#include "app/MenuActions.h"
#include "breakdown/InstallBreakdown.h"
#include "breakdown/TfrmAddElement.h"
#include "breakdown/TfrmStrip.h"

#include <QAction>
#include <QApplication>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdlib>

using namespace tb;
using namespace tb::test;

namespace {

// A main window with one action per menu name, as the real one offers them.
class FakeHost : public CommandHost
{
public:
    FakeHost() { m_window.resize(400, 300); }
    ScheduleDocument &document() override { return doc; }
    QWidget *window() override { return &m_window; }
    QAction *action(const char *name) override
    {
        QAction *&a = m_actions[QByteArray(name)];
        if (!a) {
            a = new QAction(&m_window);
            a->setObjectName(QString::fromLatin1(name));
        }
        return a;
    }
    Settings &settings() override { std::abort(); } // the breakdown commands never ask
    void repaintBoard() override { ++repaints; }
    void showHelp(const QString &page) override { help.append(page); }

    ScheduleDocument doc;
    int repaints = 0;
    QStringList help;

private:
    QWidget m_window;
    QHash<QByteArray, QAction *> m_actions;
};

// Runs a step on the next modal dialog as soon as it shows, and remembers its caption.
QString *onNextModal(const std::function<void(QWidget *)> &step)
{
    static QString caption;
    caption.clear();
    QTimer::singleShot(0, [step] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        caption = modal->windowTitle();
        step(modal);
    });
    return &caption;
}

void press(QWidget *dialog, const char *button)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
}

} // namespace

class TestInstallBreakdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addSceneFromMenuAndPopup_data();
    void addSceneFromMenuAndPopup();
    void editSceneOpensOnlyOnScenes();
    void elementCommands();
    void wholeTableCommands();
    void dialogsAreKeptAndHelpReachesTheHost();
};

void TestInstallBreakdown::addSceneFromMenuAndPopup_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("order");
    QTest::newRow("menu") << QString::fromLatin1(actions::Addscene1) << 0 << int(SceneMode::Add) << "1 3 2";
    QTest::newRow("pop-up") << QString::fromLatin1(actions::PopAddscene1) << 0 << int(SceneMode::Add) << "1 3 2";
    QTest::newRow("insert") << QString::fromLatin1(actions::PopInsertscene1) << 2 << int(SceneMode::Insert) << "1 2 3";
}

void TestInstallBreakdown::addSceneFromMenuAndPopup()
{
    QFETCH(QString, action);
    QFETCH(int, selected);
    FakeHost host;
    AddScene(host.doc, "1", "1");
    AddScene(host.doc, "3", "1");
    InstallBreakdownCommands(host);
    host.action(actions::Insertscene1)->trigger(); // no selection: nothing to insert before
    QCOMPARE(host.doc.strips.count(), 2);
    host.doc.SelStart = host.doc.SelEnd = selected;
    QString *caption = onNextModal([](QWidget *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>("SceneEdit"), "2");
        press(dialog, "OKBut");
    });
    host.action(action.toLatin1().constData())->trigger();
    QCOMPARE(*caption, "New scene breakdown #3");
    QTEST(host.doc.stripEditMode, "mode");
    QStringList order;
    for (int i = 1; i <= host.doc.strips.count(); ++i)
        order.append(host.doc.strips[i][StripField::SceneNumber]);
    QTEST(order.join(u' '), "order");
    QVERIFY(host.repaints > 0);
}

void TestInstallBreakdown::editSceneOpensOnlyOnScenes()
{
    FakeHost host;
    AddScene(host.doc, "1", "1");
    AddDivider(host.doc);
    InstallBreakdownCommands(host);

    host.doc.SelStart = host.doc.SelEnd = 2; // a divider: nothing opens
    bool opened = false;
    onNextModal([&opened](QWidget *dialog) {
        opened = true;
        press(dialog, "CancelBut");
    });
    host.action(actions::Editscene1)->trigger();
    QVERIFY(!opened);
    QTest::qWait(10); // let the pending step find no dialog

    host.doc.SelStart = host.doc.SelEnd = 1;
    QString *caption = onNextModal([](QWidget *dialog) { press(dialog, "CancelBut"); });
    host.action(actions::PopEditscene1)->trigger();
    QCOMPARE(*caption, "Edit scene breakdown #1");
    QCOMPARE(host.doc.stripEditMode, int(SceneMode::Edit));
}

void TestInstallBreakdown::elementCommands()
{
    FakeHost host;
    AddElement(host.doc, "ANNA", 1, "5");
    AddElement(host.doc, "LAMP", 5, "Prp");
    InstallBreakdownCommands(host);

    QString *caption = onNextModal([](QWidget *dialog) { press(dialog, "CancelBut"); });
    host.action(actions::Editelement1)->trigger(); // nothing selected
    QTest::qWait(10);
    QVERIFY(caption->isEmpty());

    host.doc.SelElement = 2;
    caption = onNextModal([](QWidget *dialog) { press(dialog, "CancelBut"); });
    host.action(actions::PopEditelement1)->trigger();
    QCOMPARE(*caption, "Edit element \"LAMP\"");

    caption = onNextModal([](QWidget *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>("ElName"), "BEN");
        press(dialog, "OKBut");
    });
    host.action(actions::Addelement1)->trigger();
    QCOMPARE(*caption, "Add new element");
    QCOMPARE(host.doc.elements.count(), 3);
    QCOMPARE(host.doc.elements[3][ElementField::BoardId], "6");

    host.action(actions::Reordercastnumbering1)->trigger(); // questions answered Yes
    QCOMPARE(host.doc.elements[1][ElementField::BoardId], "1");
    QCOMPARE(host.doc.elements[3][ElementField::BoardId], "2");
    host.action(actions::Sortelements1)->trigger();
    QCOMPARE(host.doc.elements[2][ElementField::Description], "BEN");
}

void TestInstallBreakdown::wholeTableCommands()
{
    FakeHost host;
    AddScene(host.doc, "2", "1");
    AddScene(host.doc, "1", "1");
    InstallBreakdownCommands(host);

    host.action(actions::Resetbreakdownnumbering1)->trigger();
    QCOMPARE(host.doc.undo.levels[1].label, "reset breakdown numbering");

    QString *caption = onNextModal([](QWidget *dialog) { press(dialog, "CancelBut"); });
    host.action(actions::Sortstrips1)->trigger();
    QCOMPARE(*caption, "Sort strips");
    caption = onNextModal([](QWidget *dialog) { press(dialog, "CancelBut"); });
    host.action(actions::Conformstriporder1)->trigger();
    QCOMPARE(*caption, "Conform strip order");
    caption = onNextModal([](QWidget *dialog) { press(dialog, "OKBut"); });
    host.action(actions::Maindetails1)->trigger();
    QCOMPARE(*caption, "Production details");
    QVERIFY(host.doc.Modified);
}

void TestInstallBreakdown::dialogsAreKeptAndHelpReachesTheHost()
{
    FakeHost host;
    InstallBreakdownCommands(host);
    const QList<TfrmStrip *> strips = host.window()->findChildren<TfrmStrip *>();
    QCOMPARE(strips.size(), 1);
    QCOMPARE(host.window()->findChildren<TfrmAddElement *>().size(), 1);
    // The scene editor's "Add new..." uses the element menu's dialog.
    QCOMPARE(strips.first()->elementDialog(), host.window()->findChild<TfrmAddElement *>());

    onNextModal([](QWidget *dialog) {
        dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QTest::keyClick(dialog, Qt::Key_F1);
        press(dialog, "CancelBut");
    });
    host.action(actions::Addscene1)->trigger();
    QCOMPARE(host.help, QStringList{"scene-breakdown.html"});
}

QTEST_MAIN(TestInstallBreakdown)
#include "tst_installbreakdown.moc"
