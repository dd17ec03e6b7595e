// End of day: scenes marked shot, undone, and kept through saving and opening.

#include "TestSupport.h"

#include "board/DrawBoard.h"
#include "document/DayCalculation.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "scheduling/EndOfDay.h"

#include <QImage>
#include <QPainter>

using namespace tb;
using namespace tb::test;

namespace {

const QDate Start(2027, 4, 5);

} // namespace

class TestEndOfDay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Day 1: scenes 1, 2; day 2: scene 3.
    void init()
    {
        NewDocument(m_doc);
        m_doc.setPrompter(&m_prompter);
        m_doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(Start));
        AddScene(m_doc, QStringLiteral("1"), QStringLiteral("1"));
        AddScene(m_doc, QStringLiteral("2"), QStringLiteral("1"));
        AddDivider(m_doc);
        AddScene(m_doc, QStringLiteral("3"), QStringLiteral("1"));
        RecalculateDays(m_doc);
    }
    void marksTheDay_data()
    {
        // before: Reserved12 of rows 1 and 2
        Columns<QString, bool, bool, QString>("before", "tick1", "tick2", "after");

        Row("tick both", ",", true, true, "46482,46482");
        Row("untick clears", "46482,46482", true, false, "46482,");
        // A scene already marked keeps the day it was first marked shot.
        Row("earlier mark kept", "46400,", true, true, "46400,46482");
    }
    void marksTheDay()
    {
        auto [before, tick1, tick2, after] = Fetch<QString, bool, bool, QString>("before", "tick1", "tick2", "after");
        m_doc.strips[1].set(StripField::Reserved12, before.section(u',', 0, 0));
        m_doc.strips[2].set(StripField::Reserved12, before.section(u',', 1, 1));
        QCOMPARE(SceneStripsOn(m_doc, Start), (QList<int>{1, 2}));
        QVERIFY(ApplyEndOfDay(m_doc, Start, {{1, tick1}, {2, tick2}}).ok());
        QCOMPARE(m_doc.strips[1][StripField::Reserved12] + u',' + m_doc.strips[2][StripField::Reserved12], after);
        QVERIFY(m_doc.Modified);
        QCOMPARE(IsShot(m_doc.strips[2]), tick2);
        QVERIFY(!IsShot(m_doc.strips[4]));
    }
    void undoTakesItBack()
    {
        QVERIFY(ApplyEndOfDay(m_doc, Start, {{1, true}}).ok());
        QCOMPARE(UndoCommands(m_doc.undo).undoCaption, QStringLiteral("Undo end of day"));
        QCOMPARE(ShotDate(m_doc.strips[1]), Start);
        Undo(m_doc);
        QVERIFY(!IsShot(m_doc.strips[1]));
    }
    void keptThroughSaveAndOpen()
    {
        QVERIFY(ApplyEndOfDay(m_doc, Start.addDays(1), {{4, true}}).ok());
        const QString path = TempPath(QStringLiteral("shot.tbf"));
        QVERIFY(SaveDocument(m_doc, path).ok());
        ScheduleDocument reopened;
        reopened.setPrompter(&m_prompter);
        QVERIFY(OpenDocument(reopened, path).ok());
        QCOMPARE(ShotDate(reopened.strips[4]), Start.addDays(1));
        QVERIFY(!IsShot(reopened.strips[1]));

        // The board marks the shot scene in its header, and only there.
        QImage plain(400, 300, QImage::Format_RGB32), marked(400, 300, QImage::Format_RGB32);
        reopened.strips[4].set(StripField::Reserved12, QString());
        {
            QPainter p(&plain);
            DrawBoard(reopened, ClassicBoardStyle(), BoardDrawOptions(), p);
        }
        reopened.strips[4].set(StripField::Reserved12, QStringLiteral("46483"));
        {
            QPainter p(&marked);
            DrawBoard(reopened, ClassicBoardStyle(), BoardDrawOptions(), p);
        }
        QVERIFY(plain != marked);
    }
    void onlyScenes()
    {
        QVERIFY(!ApplyEndOfDay(m_doc, Start, {{1, true}, {3, true}}).ok());
        QVERIFY(!IsShot(m_doc.strips[1]));
        QVERIFY(!m_doc.Modified);
        QVERIFY(!ApplyEndOfDay(m_doc, QDate(), {{1, true}}).ok());
    }

private:
    ScheduleDocument m_doc;
    ScriptedPrompter m_prompter;
};

TB_TEST_MAIN(TestEndOfDay)
#include "tst_endofday.moc"
