#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

struct Imported
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    RecordingStatus status;
    Result result = Result::success();

    Imported(const QStringList &lines, const ScriptImportSettings &settings = {})
    {
        doc.setPrompter(&prompter);
        doc.setStatusSink(&status);
        result = DoImport(doc, lines, settings);
    }
    const StripRecord &strip(int row) const { return doc.strips[row]; }
    QStringList cast() const
    {
        QStringList names;
        for (int j = 1; j <= doc.elements.count(); ++j)
            names.append(doc.elements[j][ElementField::Description]);
        return names;
    }
    QSet<QString> castOf(int row) const
    {
        QSet<QString> names;
        for (int element : AssignedElements(doc, row))
            names.insert(doc.elements[element][ElementField::Description]);
        return names;
    }
};

// A script of `count` lines with the given lines placed at their indexes; the rest
// are lines of action in ordinary case, which the import skips.
QStringList Script(int count, const QMap<int, QString> &placed)
{
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines.append(placed.value(i, QStringLiteral("Action goes on here.")));
    return lines;
}

QString WriteFile(const QString &name, const QByteArray &bytes)
{
    const QString path = TempPath(name);
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
    return path;
}

const QString ScreenplayDir = QStringLiteral(TB_SCREENPLAYS_DIR);

} // namespace

class TestScriptImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headings_data();
    void headings();
    void sceneLengths_data();
    void sceneLengths();
    void cues_data();
    void cues();
    void ignoreWordsAreSearchedForTheCue();
    void cuesGoToTheSceneOfTheLastHeading();
    void stripFields();
    void noHeadingNoStrips();
    void startsFromANewDocument();
    void progressAndModified();
    void fullTableFails();
    void readingFiles_data();
    void readingFiles();
    void missingFile();
    void realScreenplays_data();
    void realScreenplays();
};

void TestScriptImport::headings_data()
{
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("intExt");
    QTest::addColumn<QString>("dayNight");
    QTest::addColumn<QString>("location");

    QTest::newRow("kitchen at night") << "INT. KITCHEN - NIGHT"
                                      << "I"
                                      << "N"
                                      << "KITCHEN";
    QTest::newRow("scene numbers both sides") << "12 EXT. FARM - DAY 12"
                                              << "E"
                                              << "D"
                                              << "12 FARM";
    QTest::newRow("the later marker wins") << "INT. CAR / EXT. ROAD - DAY"
                                           << "E"
                                           << "D"
                                           << "CAR / ROAD";
    QTest::newRow("unknown time of day") << "EXT. BEACH - MAGIC HOUR"
                                         << "E"
                                         << "?"
                                         << "BEACH - MAGIC HOUR";
    QTest::newRow("INT./EXT.") << "INT./EXT. VAN - NIGHT"
                               << "I/E"
                               << "N"
                               << "VAN";
    QTest::newRow("INT/EXT") << "INT/EXT TRUCK - DAY"
                             << "I/E"
                             << "D"
                             << "TRUCK";
    QTest::newRow("INT/EXT.") << "INT/EXT. TRUCK - SUNSET"
                              << "I/E"
                              << "N"
                              << "TRUCK";
    QTest::newRow("EXT without a point") << "EXT FIELD - DAWN"
                                         << "E"
                                         << "D"
                                         << "FIELD";
    QTest::newRow("a day word before a night word wins") << "EXT. ROAD - DAY INTO NIGHT"
                                                         << "E"
                                                         << "D"
                                                         << "ROAD";
    QTest::newRow("words match inside longer words") << "INT. HOUSE - LATER"
                                                     << "I"
                                                     << "N"
                                                     << "HOUSE";
    QTest::newRow("no blank before the time") << "EXT. PARK--DAY"
                                              << "E"
                                              << "?"
                                              << "PARK--DAY";
    QTest::newRow("trailing digits go") << "EXT. STREET 23"
                                        << "E"
                                        << "?"
                                        << "STREET";
    QTest::newRow("tabs and blanks trimmed") << "\t  INT. OFFICE - MORNING  \t"
                                             << "I"
                                             << "D"
                                             << "OFFICE";
    QTest::newRow("form feed of a new page") << "\f      INT. OFFICE - EVENING"
                                             << "I"
                                             << "N"
                                             << "OFFICE";
    QTest::newRow("a cut removes 99 characters") << "INT. HALL - NIGHT " + QString(100, u'X') << "I"
                                                 << "N"
                                                 << "HALL -" + QString(8, u'X');
}

void TestScriptImport::headings()
{
    QFETCH(QString, heading);
    QFETCH(QString, intExt);
    QFETCH(QString, dayNight);
    QFETCH(QString, location);

    Imported run({QStringLiteral("Some action."), heading, QStringLiteral("More action.")});
    QVERIFY(run.result.ok());
    QCOMPARE(run.doc.strips.count(), 1);
    QCOMPARE(run.strip(1)[StripField::IntExt], intExt);
    QCOMPARE(run.strip(1)[StripField::DayNight], dayNight);
    QCOMPARE(run.strip(1)[StripField::Location], location);
}

void TestScriptImport::sceneLengths_data()
{
    QTest::addColumn<int>("linesPerPage");
    QTest::addColumn<QList<int>>("headingLines");
    QTest::addColumn<int>("lineCount");
    QTest::addColumn<QStringList>("lengths");

    // 30 / 55 = 0.545 pages, rounded down to 4/8; 3 lines are less than an eighth and
    // get one; the last scene keeps its raw fraction (57 / 55).
    QTest::newRow("55 lines") << 55 << QList<int>{10, 40, 43} << 100
                              << QStringList{"0.5", "0.125", legacy::FloatToText(57.0 / 55.0)};
    QTest::newRow("a whole page") << 55 << QList<int>{0, 55} << 60 << QStringList{"1", legacy::FloatToText(5.0 / 55.0)};
    QTest::newRow("short last scene has no minimum") << 50 << QList<int>{0, 99} << 100 << QStringList{"1.875", "0.02"};
    QTest::newRow("one line a page") << 1 << QList<int>{0, 3} << 4 << QStringList{"3", "1"};
}

void TestScriptImport::sceneLengths()
{
    QFETCH(int, linesPerPage);
    QFETCH(QList<int>, headingLines);
    QFETCH(int, lineCount);
    QFETCH(QStringList, lengths);

    QMap<int, QString> placed;
    for (int line : headingLines)
        placed.insert(line, QStringLiteral("INT. ROOM - DAY"));
    ScriptImportSettings settings;
    settings.linesPerPage = linesPerPage;
    Imported run(Script(lineCount, placed), settings);
    QCOMPARE(run.doc.strips.count(), int(lengths.size()));
    QStringList actual;
    for (int row = 1; row <= run.doc.strips.count(); ++row)
        actual.append(run.strip(row)[StripField::PageLength]);
    QCOMPARE(actual, lengths);
}

void TestScriptImport::cues_data()
{
    QTest::addColumn<QString>("cue");
    QTest::addColumn<QString>("element"); // empty: no element

    QTest::newRow("two words") << "JOHN SMITH"
                               << "John smith";
    QTest::newRow("indented like a cue") << "                      KEVIN"
                                         << "Kevin";
    QTest::newRow("a page number") << "12."
                                   << "12.";
    QTest::newRow("extension in parentheses") << "MARY (CONT'D)"
                                              << "";
    QTest::newRow("exclamation") << "YIP YUP!"
                                 << "";
    QTest::newRow("question") << "WHO?"
                              << "";
    QTest::newRow("colon") << "SUPER: LONDON"
                           << "";
    QTest::newRow("END lies inside THE END") << "END"
                                             << "";
    QTest::newRow("CUT lies inside CUT TO") << "CUT"
                                            << "";
    QTest::newRow("IN lies inside FADE IN") << "IN"
                                            << "";
    QTest::newRow("THE lies inside THE END") << "THE"
                                             << "";
    QTest::newRow("a longer line holding an ignore word") << "FADE IN ON MARY"
                                                          << "Fade in on mary";
    QTest::newRow("five blanks") << "A B C D E F"
                                 << "A b c d e f";
    QTest::newRow("six blanks") << "A B C D E F G"
                                << "";
    QTest::newRow("one character") << "X"
                                   << "";
    QTest::newRow("not in capitals") << "Mary"
                                     << "";
    QTest::newRow("name cut after 33 characters") << QString(40, u'Q') << "Q" + QString(32, u'q');
    QTest::newRow("accented capitals") << "ÉLODIE"
                                       << "Élodie";
    QTest::newRow("number sign") << "FISHERMAN #1"
                                 << "Fisherman #1";
}

void TestScriptImport::cues()
{
    QFETCH(QString, cue);
    QFETCH(QString, element);

    Imported run({QStringLiteral("INT. ROOM - DAY"), cue, QStringLiteral("Hello.")});
    QCOMPARE(run.doc.strips.count(), 1);
    if (element.isEmpty()) {
        QCOMPARE(run.doc.elements.count(), 0);
        QCOMPARE(run.strip(1)[StripField::Assignments], QString());
    } else {
        QCOMPARE(run.cast(), QStringList{element});
        QCOMPARE(run.strip(1)[StripField::Assignments], QStringLiteral("1"));
    }
}

void TestScriptImport::ignoreWordsAreSearchedForTheCue()
{
    ScriptImportSettings settings;
    settings.ignoreWords = {QStringLiteral("mary jane")}; // compared in capitals
    Imported run({QStringLiteral("INT. ROOM - DAY"), QStringLiteral("MARY"), QStringLiteral("JANE"),
                  QStringLiteral("MARY JANE WATSON")},
                 settings);
    QCOMPARE(run.cast(), QStringList{"Mary jane watson"});
}

void TestScriptImport::cuesGoToTheSceneOfTheLastHeading()
{
    Imported run({QStringLiteral("NARRATOR"), QStringLiteral("Once upon a time."), QStringLiteral("INT. ROOM - DAY"),
                  QStringLiteral("JOHN"), QStringLiteral("Hi."), QStringLiteral("MARY"), QStringLiteral("Hello."),
                  QStringLiteral("JOHN"), QStringLiteral("Bye."), QStringLiteral("EXT. GARDEN - NIGHT"),
                  QStringLiteral("mary"), QStringLiteral("MARY"), QStringLiteral("Alone.")});
    QCOMPARE(run.cast(), (QStringList{"Narrator", "John", "Mary"}));
    // A cue before the first heading makes the element but assigns it nowhere. A second
    // cue in the same scene is assigned again: the duplicate test of AddAssignment only
    // catches numbers of three digits.
    QCOMPARE(run.strip(1)[StripField::Assignments], QStringLiteral("2,3,2"));
    QCOMPARE(run.strip(2)[StripField::Assignments], QStringLiteral("3"));
    for (int j = 1; j <= 3; ++j) {
        const ElementRecord &e = run.doc.elements[j];
        QCOMPARE(e[ElementField::CategoryNumber], QStringLiteral("1"));
        QCOMPARE(e[ElementField::PrintOnBoard], QStringLiteral("1"));
        QCOMPARE(e[ElementField::BoardId], QString::number(j));
        QCOMPARE(e[ElementField::HoldRule], QString());
        QCOMPARE(e[ElementField::PersonName], QString());
    }
}

void TestScriptImport::stripFields()
{
    Imported run({QStringLiteral("FADE IN:"), QStringLiteral(""), QStringLiteral("INT. KITCHEN - NIGHT"),
                  QStringLiteral("Steam."), QStringLiteral("EXT. BARN - DAY"), QStringLiteral("Hay.")});
    QCOMPARE(run.doc.strips.count(), 2);
    QCOMPARE(run.doc.values.NextStripId, 2);
    for (int row = 1; row <= 2; ++row) {
        const StripRecord &s = run.strip(row);
        QVERIFY(s.isScene());
        QCOMPARE(s[StripField::SceneNumber], QString::number(row));
        QCOMPARE(s[StripField::StripId], QString::number(row));
        QCOMPARE(s[StripField::ScriptPage], QStringLiteral("0"));
        QCOMPARE(s[StripField::Synopsis], QString());
    }
    // The line of the heading in the script.
    QCOMPARE(run.strip(1)[StripField::Reserved8], QStringLiteral("2"));
    QCOMPARE(run.strip(2)[StripField::Reserved8], QStringLiteral("4"));
    QCOMPARE(run.doc.locationPickList, (QStringList{"KITCHEN", "BARN"}));
    // "FADE IN:" holds a colon: not a cue.
    QCOMPARE(run.doc.elements.count(), 0);
}

void TestScriptImport::noHeadingNoStrips()
{
    Imported run({QStringLiteral("JOHN"), QStringLiteral("Where are we?"), QStringLiteral("MARY")});
    QVERIFY(run.result.ok());
    QCOMPARE(run.doc.strips.count(), 0);
    QCOMPARE(run.cast(), (QStringList{"John", "Mary"}));
    QVERIFY(run.prompter.prompts.isEmpty());
}

void TestScriptImport::startsFromANewDocument()
{
    ScheduleDocument doc;
    doc.values.PictureTitle = QStringLiteral("Old film");
    doc.FileName = QStringLiteral("/tmp/old.tbf");
    AddScene(doc, QStringLiteral("7"), QStringLiteral("1"));
    AddDivider(doc);
    AddElement(doc, QStringLiteral("Old cast"));
    doc.locationPickList = {QStringLiteral("OLD PLACE")};

    QVERIFY(DoImport(doc, {QStringLiteral("INT. ROOM - DAY"), QStringLiteral("ANN")}, {}).ok());
    QCOMPARE(doc.values.PictureTitle, QString());
    QCOMPARE(doc.FileName, QString());
    QCOMPARE(Kinds(doc), QStringLiteral("1"));
    QCOMPARE(doc.strips[1][StripField::StripId], QStringLiteral("1"));
    QCOMPARE(doc.elements.count(), 1);
    QCOMPARE(doc.elements[1][ElementField::Description], QStringLiteral("Ann"));
    QCOMPARE(doc.locationPickList, QStringList{"ROOM"});
}

void TestScriptImport::progressAndModified()
{
    Imported run(Script(10, {{1, "INT. KITCHEN - NIGHT"}, {5, "EXT. BARN - DAY"}}));
    // The number shown is one ahead of the scene just read.
    QCOMPARE(run.status.panels.value(StatusSink::MessagePanel), QStringLiteral("Import progress : 3 - BARN"));
    QCOMPARE(run.status.progress.first(), 0);
    QCOMPARE(run.status.progress.last(), 100);
    QVERIFY(!run.status.busy);
    QVERIFY(run.doc.Modified);
    QCOMPARE(run.status.panels.value(StatusSink::ModifiedPanel), QStringLiteral("Modified"));
    // The day recalculation ran: both scenes lie before any divider.
    QCOMPARE(run.strip(1)[StripField::DayNumber], QStringLiteral("0"));
}

void TestScriptImport::fullTableFails()
{
    QStringList lines{QStringLiteral("ANN")};
    for (int k = 0; k <= MaxStrips; ++k)
        lines << QStringLiteral("INT. ROOM %1 - DAY").arg(k) << QStringLiteral("BOB");
    Imported run(lines);
    QVERIFY(!run.result.ok());
    QCOMPARE(run.prompter.texts(), QStringList{"Error with import procedure."});
    QCOMPARE(run.prompter.prompts.first().kind, MessageKind::Error);
    // Strips read before the failure are not counted; the elements made stay.
    QCOMPARE(run.doc.strips.count(), 0);
    QCOMPARE(run.cast(), (QStringList{"Ann", "Bob"}));
    QVERIFY(run.doc.Modified);
    QVERIFY(!run.status.busy);
}

void TestScriptImport::readingFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("LF") << QByteArray("INT. CAFE\n\nANN\n") << QStringList{"INT. CAFE", "", "ANN"};
    QTest::newRow("CR LF") << QByteArray("INT. CAFE\r\n\r\nANN\r\n") << QStringList{"INT. CAFE", "", "ANN"};
    QTest::newRow("lone CR") << QByteArray("INT. CAFE\r\rANN") << QStringList{"INT. CAFE", "", "ANN"};
    QTest::newRow("no final line end") << QByteArray("A\nB") << QStringList{"A", "B"};
    QTest::newRow("empty file") << QByteArray() << QStringList{};
    QTest::newRow("Windows-1252") << QByteArray("INT. CAF\xC9 \x96 DAY\n") << QStringList{u"INT. CAFÉ – DAY"_qs};
    QTest::newRow("UTF-8") << QByteArray("INT. CAF\xC3\x89 \xE2\x80\x93 DAY\n") << QStringList{u"INT. CAFÉ – DAY"_qs};
    QTest::newRow("UTF-8 with byte order mark")
        << QByteArray("\xEF\xBB\xBFINT. CAF\xC3\x89\n") << QStringList{u"INT. CAFÉ"_qs};
    QTest::newRow("form feeds stay in the line") << QByteArray("A\n\f   B\n\f") << QStringList{"A", "\f   B", "\f"};
}

void TestScriptImport::readingFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    const QString path = WriteFile(QStringLiteral("script-%1.txt").arg(QTest::currentDataTag()), bytes);
    const ResultOf<QStringList> read = ReadScriptFile(path);
    QVERIFY(read.ok());
    QCOMPARE(*read, lines);
}

void TestScriptImport::missingFile()
{
    const ResultOf<QStringList> read = ReadScriptFile(TempPath("no-such-script.txt"));
    QVERIFY(!read.ok());
    QVERIFY(read.message().startsWith("Error with import procedure.\r\r"));
    QVERIFY(read.message().contains("no-such-script.txt"));
}

void TestScriptImport::realScreenplays_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("headings");      // INT/EXT headings, as the file's notes count them
    QTest::addColumn<int>("speakers");      // distinct speaking characters, likewise
    QTest::addColumn<QStringList>("other"); // capitals-only lines the rules take as names too

    QTest::newRow("trelby") << "trelby-test.txt" << 11 << 7
                            << QStringList{"Map of the atlantic ocean", "Map of the american continents"};
    QTest::newRow("cyber bob") << "cyber-bob-ep1.txt" << 3 << 6
                               << QStringList{
                                      "2.", "3.", "4.", "5.", "6.", "\"shrinker-teleporter.\"", "\"dog translator\""};
}

// The screenplays were written by others; the expected figures come from the layout
// of the files, found here independently of the importer: headings start a line with
// INT or EXT, cues are capitals indented like cues (15 to 39 blanks), with any
// extension in parentheses dropped, apart from the closing "THE END".
void TestScriptImport::realScreenplays()
{
    QFETCH(QString, file);
    QFETCH(int, headings);
    QFETCH(int, speakers);
    QFETCH(QStringList, other);

    const QString path = QDir(ScreenplayDir).filePath(file);
    if (!QFile::exists(path))
        QSKIP("the shared screenplays are not on this machine");
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
    QSet<QString> expectedCast = speaking;
    for (const QString &name : other)
        expectedCast.insert(name);
    const QStringList cast = run.cast();
    QCOMPARE(QSet<QString>(cast.begin(), cast.end()), expectedCast);
    QCOMPARE(cast.size(), expectedCast.size()); // no name twice

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
        QSet<QString> assigned = run.castOf(row);
        for (const QString &name : other)
            assigned.remove(name);
        QCOMPARE(assigned, expected);
        QVERIFY(PageLengthOf(run.strip(row)) >= 0.125 || row == run.doc.strips.count());
        pages += PageLengthOf(run.strip(row));
    }
    // Together the scenes cover the script from its first heading.
    QVERIFY(qAbs(pages - (lines->size() - headingLines.first()) / 55.0) < 0.125 * headings);
}

QTEST_GUILESS_MAIN(TestScriptImport)
#include "tst_scriptimport.moc"
