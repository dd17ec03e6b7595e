#include "ImportTestSupport.h"

#include "document/LegacyText.h"
#include "import/CharacterReview.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

#include <QRegularExpression>
#include <QSet>

using namespace tb;
using namespace tb::test;

namespace {

struct Imported
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Result result = Result::success();

    Imported(const QStringList &lines, const ScriptImportSettings &settings = {})
    {
        doc.setPrompter(&prompter);
        result = DoImport(doc, lines, settings);
    }
    const StripRecord &strip(int row) const { return doc.strips[row]; }
    QSet<QString> castOf(int row) const
    {
        QSet<QString> names;
        for (int element : AssignedElements(doc, row))
            names.insert(doc.elements[element][ElementField::Description]);
        return names;
    }
};

const QString ScreenplayDir = QStringLiteral(TB_SCREENPLAYS_DIR);

} // namespace

class TestScriptImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headings_data()
    {
        Columns<QString, QString, QString, QString>("heading", "intExt", "dayNight", "location");

        Row("kitchen at night", "INT. KITCHEN - NIGHT", "I", "N", "KITCHEN");
        Row("scene numbers both sides", "12 EXT. FARM - DAY 12", "E", "D", "12 FARM");
        Row("the later marker wins", "INT. CAR / EXT. ROAD - DAY", "E", "D", "CAR / ROAD");
        Row("unknown time of day", "EXT. BEACH - MAGIC HOUR", "E", "?", "BEACH - MAGIC HOUR");
        Row("INT./EXT.", "INT./EXT. VAN - NIGHT", "I/E", "N", "VAN");
        Row("INT/EXT", "INT/EXT TRUCK - DAY", "I/E", "D", "TRUCK");
        Row("INT/EXT.", "INT/EXT. TRUCK - SUNSET", "I/E", "N", "TRUCK");
        Row("EXT without a point", "EXT FIELD - DAWN", "E", "D", "FIELD");
        Row("a day word before a night word wins", "EXT. ROAD - DAY INTO NIGHT", "E", "D", "ROAD");
        Row("words match inside longer words", "INT. HOUSE - LATER", "I", "N", "HOUSE");
        Row("no blank before the time", "EXT. PARK--DAY", "E", "?", "PARK--DAY");
        Row("trailing digits go", "EXT. STREET 23", "E", "?", "STREET");
        Row("tabs and blanks trimmed", "\t  INT. OFFICE - MORNING  \t", "I", "D", "OFFICE");
        Row("form feed of a new page", "\f      INT. OFFICE - EVENING", "I", "N", "OFFICE");
        Row("a cut removes 99 characters", "INT. HALL - NIGHT " + QString(100, u'X'), "I", "N",
            "HALL -" + QString(8, u'X'));
    }
    void headings()
    {
        QFETCH(QString, heading);

        Imported run({"Some action.", heading, "More action."});
        QVERIFY(run.result.ok());
        QCOMPARE(run.doc.strips.count(), 1);
        QTEST(run.strip(1)[StripField::IntExt], "intExt");
        QTEST(run.strip(1)[StripField::DayNight], "dayNight");
        QTEST(run.strip(1)[StripField::Location], "location");
    }
    void sceneLengths_data()
    {
        Columns<int, QList<int>, int, QStringList>("linesPerPage", "headingLines", "lineCount", "lengths");

        // 30 / 55 = 0.545 pages, rounded down to 4/8; 3 lines are less than an eighth and
        // get one; the last scene keeps its raw fraction (57 / 55).
        Row("55 lines", 55, QList<int>{10, 40, 43}, 100, QStringList{"0.5", "0.125", legacy::FloatToText(57.0 / 55.0)});
        Row("a whole page", 55, QList<int>{0, 55}, 60, QStringList{"1", legacy::FloatToText(5.0 / 55.0)});
        Row("short last scene has no minimum", 50, QList<int>{0, 99}, 100, QStringList{"1.875", "0.02"});
        Row("one line a page", 1, QList<int>{0, 3}, 4, QStringList{"3", "1"});
    }
    void sceneLengths()
    {
        auto [linesPerPage, headingLines, lineCount] =
            Fetch<int, QList<int>, int>("linesPerPage", "headingLines", "lineCount");

        // Lines of action in ordinary case, which the import skips, and the headings.
        QStringList lines(lineCount, "Action goes on here.");
        for (int line : headingLines)
            lines[line] = "INT. ROOM - DAY";
        ScriptImportSettings settings;
        settings.linesPerPage = linesPerPage;
        Imported run(lines, settings);
        QStringList actual;
        for (int row = 1; row <= run.doc.strips.count(); ++row)
            actual.append(run.strip(row)[StripField::PageLength]);
        QTEST(actual, "lengths");
    }
    void cues_data()
    {
        // element: empty: no element
        Columns<QString, QString>("cue", "element");

        Row("two words", "JOHN SMITH", "John smith");
        Row("indented like a cue", "                      KEVIN", "Kevin");
        Row("a page number", "12.", "12.");
        Row("extension in parentheses", "MARY (CONT'D)", "");
        Row("exclamation", "YIP YUP!", "");
        Row("colon", "SUPER: LONDON", "");
        Row("END lies inside THE END", "END", "");
        Row("IN lies inside FADE IN", "IN", "");
        Row("THE lies inside THE END", "THE", "");
        Row("a longer line holding an ignore word", "FADE IN ON MARY", "Fade in on mary");
        Row("five blanks", "A B C D E F", "A b c d e f");
        Row("six blanks", "A B C D E F G", "");
        Row("one character", "X", "");
        Row("not in capitals", "Mary", "");
        Row("name cut after 33 characters", QString(40, u'Q'), "Q" + QString(32, u'q'));
        Row("accented capitals", "ÉLODIE", "Élodie");
        Row("number sign", "FISHERMAN #1", "Fisherman #1");
    }
    void cues()
    {
        auto [cue, element] = Fetch<QString, QString>("cue", "element");

        Imported run({"INT. ROOM - DAY", cue, "Hello."});
        QCOMPARE(run.doc.strips.count(), 1);
        QCOMPARE(Cast(run.doc), element.isEmpty() ? QStringList{} : QStringList{element});
        QCOMPARE(run.strip(1)[StripField::Assignments], element.isEmpty() ? "" : "1");
    }
    void ignoreWordsAreSearchedForTheCue()
    {
        ScriptImportSettings settings;
        settings.ignoreWords = {"mary jane"}; // compared in capitals
        Imported run({"INT. ROOM - DAY", "MARY", "JANE", "MARY JANE WATSON"}, settings);
        QCOMPARE(Cast(run.doc), QStringList{"Mary jane watson"});
    }
    void cuesGoToTheSceneOfTheLastHeading()
    {
        Imported run({"NARRATOR", "Once upon a time.", "INT. ROOM - DAY", "JOHN", "Hi.", "MARY", "Hello.", "JOHN",
                      "Bye.", "EXT. GARDEN - NIGHT", "mary", "MARY", "Alone."});
        QCOMPARE(Cast(run.doc), (QStringList{"Narrator", "John", "Mary"}));
        // A cue before the first heading makes the element but assigns it nowhere. A second
        // cue in the same scene is assigned again: the duplicate test of AddAssignment only
        // catches numbers of three digits.
        QCOMPARE(run.strip(1)[StripField::Assignments], "2,3,2");
        QCOMPARE(run.strip(2)[StripField::Assignments], "3");
        for (int j = 1; j <= 3; ++j) {
            const ElementRecord &e = run.doc.elements[j];
            QCOMPARE(e[ElementField::CategoryNumber], "1");
            QCOMPARE(e[ElementField::PrintOnBoard], "1");
            QCOMPARE(e[ElementField::BoardId], QString::number(j));
            QCOMPARE(e[ElementField::HoldRule], QString());
            QCOMPARE(e[ElementField::PersonName], QString());
        }

        // Without a heading there are no strips, but the cues still make elements.
        Imported noHeading({"JOHN", "Where are we?", "MARY"});
        QVERIFY(noHeading.result.ok());
        QCOMPARE(noHeading.doc.strips.count(), 0);
        QCOMPARE(Cast(noHeading.doc), (QStringList{"John", "Mary"}));
        QVERIFY(noHeading.prompter.prompts.isEmpty());
    }
    void startsFromANewDocument()
    {
        ScheduleDocument doc;
        RecordingStatus status{doc};
        doc.values.PictureTitle = "Old film";
        doc.FileName = "/tmp/old.tbf";
        AddScene(doc, "7", "1");
        AddDivider(doc);
        AddElement(doc, "Old cast");
        doc.locationPickList = {"OLD PLACE"};

        QVERIFY(DoImport(doc, {"FADE IN:", "", "INT. KITCHEN - NIGHT", "Steam.", "", "", "EXT. BARN - DAY", "Hay."}, {})
                    .ok());
        QCOMPARE(doc.values.PictureTitle, QString());
        QCOMPARE(doc.FileName, QString());
        QCOMPARE(Kinds(doc), "1 1");
        QCOMPARE(doc.values.NextStripId, 2);
        for (int row = 1; row <= 2; ++row) {
            const StripRecord &s = doc.strips[row];
            QCOMPARE(s[StripField::SceneNumber], QString::number(row));
            QCOMPARE(s[StripField::StripId], QString::number(row));
            QCOMPARE(s[StripField::ScriptPage], "0");
            QCOMPARE(s[StripField::Synopsis], QString());
            QCOMPARE(s[StripField::DayNumber], "0"); // the days were recalculated
        }
        QCOMPARE(doc.locationPickList, (QStringList{"KITCHEN", "BARN"}));
        // "FADE IN:" holds a colon: not a cue; the old cast is gone.
        QCOMPARE(doc.elements.count(), 0);

        // The number shown is one ahead of the scene just read.
        QCOMPARE(status.panels.value(StatusSink::MessagePanel), "Import progress : 3 - BARN");
        QCOMPARE(status.progress.first(), 0);
        QCOMPARE(status.progress.last(), 100);
        QVERIFY(!status.busy);
        QVERIFY(doc.Modified);
    }
    void fullTableKeepsWhatFits()
    {
        QStringList lines{"ANN"};
        for (int k = 0; k <= MaxStrips + 1; ++k)
            lines << QStringLiteral("INT. ROOM %1 - DAY").arg(k) << (k < MaxStrips ? "BOB" : "CAROL") << ""
                  << "";
        Imported run(lines);
        QVERIFY(run.result.ok());
        QCOMPARE(run.prompter.texts(), QStringList{"The schedule can hold at most 1000 strips: the first 1000 scenes "
                                                   "were imported and the last 2 scenes were left out."});
        QCOMPARE(run.prompter.prompts.first().kind, MessageKind::Warning);
        QCOMPARE(run.doc.strips.count(), MaxStrips);
        QCOMPARE(run.doc.strips[MaxStrips][StripField::SceneNumber], "1000");
        QCOMPARE(run.doc.strips[MaxStrips][StripField::PageLength], run.doc.strips[1][StripField::PageLength]);
        // The cast of the scenes left out is left out too.
        QCOMPARE(Cast(run.doc), (QStringList{"Ann", "Bob"}));
    }
    void readingFiles_data()
    {
        Columns<QByteArray, QStringList>("bytes", "lines");

        using L = QStringList;
        Row("LF", QByteArray("INT. CAFE\n\nANN\n"), L{"INT. CAFE", "", "ANN"});
        Row("CR LF", QByteArray("INT. CAFE\r\n\r\nANN\r\n"), L{"INT. CAFE", "", "ANN"});
        Row("lone CR", QByteArray("INT. CAFE\r\rANN"), L{"INT. CAFE", "", "ANN"});
        Row("no final line end", QByteArray("A\nB"), L{"A", "B"});
        Row("empty file", QByteArray(), L{});
        // Decoded as schedule files are.
        Row("UTF-8 with byte order mark", QByteArray("\xEF\xBB\xBFINT. CAF\xC3\x89\n"), L{u"INT. CAFÉ"_qs});
        Row("form feeds stay in the line", QByteArray("A\n\f   B\n\f"), L{"A", "\f   B", "\f"});
    }
    void readingFiles()
    {
        QFETCH(QByteArray, bytes);
        const QString path = WriteFile(QStringLiteral("script-%1.txt").arg(QTest::currentDataTag()), bytes);
        const ResultOf<QStringList> read = ReadScriptFile(path);
        QVERIFY(read.ok());
        QTEST(*read, "lines");

        if (QTest::currentDataTag() == QByteArrayLiteral("LF")) {
            const ResultOf<QStringList> missing = ReadScriptFile(TempPath("no-such-script.txt"));
            QVERIFY(!missing.ok());
            QVERIFY(missing.message().startsWith("Error with import procedure.\r\r"));
            QVERIFY(missing.message().contains("no-such-script.txt"));
        }
    }
    void realScreenplays_data()
    {
        // headings: INT/EXT headings, as the file's notes count them
        // speakers: distinct speaking characters, likewise
        // other: capitals-only lines the rules take as names too, in the order they come
        Columns<QString, int, int, QStringList>("file", "headings", "speakers", "other");

        Row("trelby", "trelby-test.txt", 11, 7,
            QStringList{"Map of the atlantic ocean", "Map of the american continents"});
        Row("cyber bob", "cyber-bob-ep1.txt", 3, 6,
            QStringList{"2.", "3.", "\"shrinker-teleporter.\"", "4.", "\"dog translator\"", "5.", "6."});
    }
    // The screenplays were written by others; the expected figures come from the layout
    // of the files, found here independently of the importer: headings start a line with
    // INT or EXT, cues are capitals indented like cues (15 to 39 blanks), with any
    // extension in parentheses dropped, apart from the closing "THE END".
    void realScreenplays()
    {
        auto [file, headings, speakers, other] =
            Fetch<QString, int, int, QStringList>("file", "headings", "speakers", "other");

        const QString path = QDir(ScreenplayDir).filePath(file);
        const ResultOf<QStringList> lines = ReadScriptFile(path);
        QVERIFY(lines.ok());

        static const QRegularExpression headingPattern(QStringLiteral("^(INT|EXT)[./ ]"));
        static const QRegularExpression cuePattern(QStringLiteral("^\f? {15,39}([^ a-z(][^a-z]*?)( \\(.*\\))?$"));
        QList<int> headingLines;
        QList<QPair<int, QString>> cues;
        for (int i = 0; i < lines->size(); ++i) {
            const QString &line = lines->at(i);
            if (headingPattern.match(TrimImportLine(line)).hasMatch())
                headingLines.append(i);
            const QRegularExpressionMatch cue = cuePattern.match(line);
            // "THE END" is centred, so it falls among the cue columns.
            if (cue.hasMatch() && cue.captured(1) != QLatin1String("THE END")) {
                const QString name = cue.captured(1);
                cues.append({i, name.left(1) + name.mid(1).toLower()});
            }
        }
        QCOMPARE(headingLines.size(), headings);

        Imported run(*lines);
        QVERIFY(run.result.ok());
        QVERIFY(run.prompter.prompts.isEmpty());
        QCOMPARE(run.doc.strips.count(), headings);

        QSet<QString> speaking;
        for (const auto &cue : cues)
            speaking.insert(cue.second);
        QCOMPARE(speaking.size(), speakers);
        // The import names each speaking character and each other name once; the review
        // drops the other names.
        const QStringList dropped = RemoveDoubtfulCharacters(run.doc);
        QCOMPARE(dropped, other);
        const QStringList cast = Cast(run.doc);
        QCOMPARE(QSet<QString>(cast.begin(), cast.end()), speaking);
        QCOMPARE(cast.size(), speakers);

        // Scene by scene: the characters with a cue between a heading and the next one.
        double pages = 0;
        for (int row = 1; row <= run.doc.strips.count(); ++row) {
            const int from = headingLines.at(row - 1);
            const int to = row < headingLines.size() ? headingLines.at(row) : int(lines->size());
            QCOMPARE(run.strip(row)[StripField::Reserved8], QString::number(from));
            QSet<QString> expected;
            for (const auto &cue : cues) {
                if (cue.first > from && cue.first < to)
                    expected.insert(cue.second);
            }
            QCOMPARE(run.castOf(row), expected);
            QVERIFY(PageLengthOf(run.strip(row)) >= 0.125 || row == run.doc.strips.count());
            pages += PageLengthOf(run.strip(row));
        }
        // Together the scenes cover the script from its first heading.
        QVERIFY(qAbs(pages - (lines->size() - headingLines.first()) / 55.0) < 0.125 * headings);
    }
};

TB_TEST_GUILESS_MAIN(TestScriptImport)
#include "tst_scriptimport.moc"
