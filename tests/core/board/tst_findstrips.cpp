#include "TestSupport.h"

#include "board/FindStrips.h"

using namespace tb;
using namespace tb::test;

// A board of five scenes, a divider and a banner:
//   1 sc 1 "HARBOUR WALL"  2 sc 2 "LIGHTHOUSE"  3 divider  4 sc 3A set "Lamp room"
//   5 banner "TRAVEL DAY"  6 sc 4 sequence "Storm"  7 sc 5, assigned element "Mara Quinn"
class TestFindStrips : public QObject
{
    Q_OBJECT

    ScheduleDocument doc;

private Q_SLOTS:
    void initTestCase()
    {
        AddScene(doc, "1", "1");
        doc.strips[1].set(StripField::Location, QStringLiteral("HARBOUR WALL"));
        AddScene(doc, "2", "1");
        doc.strips[2].set(StripField::Location, QStringLiteral("LIGHTHOUSE"));
        doc.strips[2].set(StripField::Synopsis, QStringLiteral("Mara climbs the stair"));
        AddDivider(doc);
        AddScene(doc, "3A", "1");
        doc.strips[4].set(StripField::SetName, QStringLiteral("Lamp room"));
        AddBanner(doc, "TRAVEL DAY");
        AddScene(doc, "4", "1");
        doc.strips[6].set(StripField::Sequence, QStringLiteral("Storm"));
        AddScene(doc, "5", "1");
        AddElement(doc, "Mara Quinn");
        AddAssignment(doc, 7, 1);
    }

    void matches_data()
    {
        Columns<QString, QString>("text", "rows");
        Row("scene number", "3a", "4");
        Row("location, any case", "harbour", "1");
        Row("set", "lamp", "4");
        Row("synopsis and element", "mara", "2 7");
        Row("sequence", "STORM", "6");
        Row("banners are not searched", "travel", "");
        Row("nothing", "desert", "");
        Row("blank finds nothing", "  ", "");
    }
    void matches()
    {
        QFETCH(QString, text);
        QStringList found;
        for (int row = 1; row <= doc.strips.count(); ++row)
            if (StripMatches(doc, row, text))
                found.append(QString::number(row));
        QTEST(found.join(u' '), "rows");
        QCOMPARE(CountMatchingStrips(doc, text), int(found.size()));
    }

    void nextAndPreviousGoRound_data()
    {
        // found: 0 none
        Columns<QString, int, bool, int>("text", "from", "forward", "found");
        Row("from nothing forward", "mara", 0, true, 2);
        Row("from nothing backward", "mara", 0, false, 7);
        Row("forward past the end", "mara", 7, true, 2);
        Row("forward", "mara", 2, true, 7);
        Row("backward past the start", "mara", 2, false, 7);
        Row("out of range forward", "mara", 99, true, 2);
        Row("single match is found again", "storm", 6, true, 6);
        Row("no match", "desert", 1, true, 0);
    }
    void nextAndPreviousGoRound()
    {
        auto [text, from, forward] = Fetch<QString, int, bool>("text", "from", "forward");
        QTEST(FindStrip(doc, text, from, forward), "found");
    }
};

TB_TEST_GUILESS_MAIN(TestFindStrips)
#include "tst_findstrips.moc"
