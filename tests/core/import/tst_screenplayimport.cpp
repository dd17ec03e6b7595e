#include "ImportTestSupport.h"

#include "import/CharacterReview.h"
#include "import/FdxImport.h"
#include "import/FountainImport.h"
#include "import/ImportSummary.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

using namespace tb;
using namespace tb::test;

namespace {

const QString DataDir = QStringLiteral(TB_IMPORT_DATA);

struct Imported
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Result result = Result::success();

    Imported() { doc.setPrompter(&prompter); }
    static std::unique_ptr<Imported> fountain(const QString &text)
    {
        auto run = std::make_unique<Imported>();
        run->result = ImportFountain(run->doc, SplitImportLines(text), ScriptImportSettings());
        return run;
    }
    static std::unique_ptr<Imported> fdx(const QByteArray &xml)
    {
        auto run = std::make_unique<Imported>();
        run->result = ImportFdxFile(run->doc, WriteFile("script.fdx", xml), ScriptImportSettings());
        return run;
    }
    QString field(int row, StripField f) const { return doc.strips[row][f]; }
    QStringList column(StripField f) const { return StripColumn(doc, f); }
    double pages() const { return SummarizeImport(doc).pages; }
};

// An .fdx file around the given paragraphs.
QByteArray Fdx(const QString &content, const QString &titlePage = QString())
{
    return (QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>\n"
                           "<FinalDraft DocumentType=\"Script\" Template=\"No\" Version=\"5\">\n<Content>\n") +
            content + "</Content>\n<TitlePage><Content>" + titlePage + "</Content></TitlePage>\n</FinalDraft>\n")
        .toUtf8();
}

QString Para(const QString &type, const QString &text, const QString &extra = QString())
{
    return QStringLiteral("<Paragraph Type=\"%1\"%2><Text>%3</Text></Paragraph>\n")
        .arg(type, extra.isEmpty() ? QString() : u' ' + extra, text.toHtmlEscaped());
}

} // namespace

class TestScreenplayImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headings_data()
    {
        Columns<QString, QString, QString, QString>("heading", "intExt", "dayNight", "location");

        Row("interior night", "INT. KITCHEN - NIGHT", "I", "N", "KITCHEN");
        Row("two dashes, no blanks", "EXT. PARK--DAY", "E", "D", "PARK");
        Row("both, with a sub-location", "INT./EXT. CAR - MOVING - DAY", "I/E", "D", "CAR - MOVING");
        Row("I/E", "I/E HOUSE - NIGHT", "I/E", "N", "HOUSE");
        Row("established shot, dawn is a day word", "EST. CITY - DAWN", "E", "D", "CITY");
        Row("continuous leaves the time open", "INT. HOUSE - HALL - CONTINUOUS", "I", "?", "HOUSE - HALL");
        Row("time before a continuity note", "INT. HOUSE - NIGHT - CONTINUOUS", "I", "N", "HOUSE");
        Row("no time word", "EXT. BEACH - MAGIC HOUR", "E", "?", "BEACH - MAGIC HOUR");
        Row("time without a dash", "INT. ATTIC NIGHT", "I", "N", "ATTIC");
        Row("day word wins as in the text import", "EXT. ROAD - LATE AFTERNOON", "E", "D", "ROAD");
        Row("later is no late", "INT. BAR - LATER", "I", "?", "BAR");
        Row("forced heading", "SNIPER SCOPE POV", "?", "?", "SNIPER SCOPE POV");
        Row("lower case", "int. barn - day", "I", "D", "BARN");
        Row("apostrophe kept", "EXT. BRICK'S PATIO - DAY", "E", "D", "BRICK'S PATIO");
    }

    void headings()
    {
        QFETCH(QString, heading);
        QString i, d, l;
        ReadSceneHeading(heading, ScriptImportSettings(), &i, &d, &l);
        QTEST(i, "intExt");
        QTEST(d, "dayNight");
        QTEST(l, "location");
    }

    void cueNames_data()
    {
        Columns<QString, QString>("cue", "name");
        Row("continued", "MIKE (CONT'D)", "MIKE");
        Row("two extensions", "DONNA (V.O.) (CONT'D)", "DONNA");
        Row("dual dialogue", "BRICK ^", "BRICK");
        Row("forced, mixed case", "@McCLANE", "McCLANE");
        Row("lower-case extension", "HANS (on the radio)", "HANS");
        Row("continued without parentheses", "KATE CONT'D", "KATE");
        Row("blanks folded", "FISHERMAN  #1", "FISHERMAN #1");
    }

    void cueNames()
    {
        QFETCH(QString, cue);
        QTEST(CueName(cue), "name");
    }

    void synopsis_data()
    {
        Columns<QString, QString>("action", "synopsis");
        Row("short, first line only", "A gorgeous day.\nThe sun shines.", "A gorgeous day.");
        Row("first sentence of a long line",
            "A gorgeous day.  The sun is shining.  But BRICK BRADDOCK, retired police detective, sits.",
            "A gorgeous day.");
        Row("cut at a blank", "The small bedroom is painted sky blue and has toys scattered all around the floor of it",
            "The small bedroom is painted sky blue and has toys scattered...");
        Row("markup removed", "*Did you know* _Brick_ is **retired**?", "Did you know Brick is retired?");
    }

    void synopsis()
    {
        QFETCH(QString, action);
        QTEST(SynopsisFrom(action), "synopsis");
    }

    void fountainRules()
    {
        const QString script = QStringLiteral("Title: **THE HEIST**\nAuthor: Nobody\n\n# ACT ONE\n= The crew meets.\n\n"
                                              "NARRATOR (V.O.)\nOnce upon a time.\n\nINT. VAULT - NIGHT #12A#\n\n"
                                              "Alarms blare. [[fix this]] Lights flash.\n\nMARY\n(whispering)\nGo.\n\n"
                                              "JOHN ^\nNow.\n\nMARY (CONT'D)\nGo!\n\n/* EXT. CUT SCENE - DAY\n\nGHOST\n"
                                              "Boo. */\n\nCUT TO:\n\n.FLASHBACK\n\n@McCLANE\nYippee.\n\n"
                                              "EXT. ROOF - DAY #13#\n\n[[a note alone]]\n\n[[a note left open\n\n"
                                              "Wind.\n\n> THE END <\n");
        auto run = Imported::fountain(script);
        QVERIFY(run->result.ok());
        QVERIFY(run->prompter.prompts.isEmpty());
        QCOMPARE(run->doc.values.PictureTitle, "THE HEIST");
        QCOMPARE(run->column(StripField::SceneNumber), (QStringList{"12A", "2", "13"}));
        QCOMPARE(run->column(StripField::IntExt), (QStringList{"I", "?", "E"}));
        QCOMPARE(run->column(StripField::DayNight), (QStringList{"N", "?", "D"}));
        QCOMPARE(run->column(StripField::Location), (QStringList{"VAULT", "FLASHBACK", "ROOF"}));
        QCOMPARE(run->column(StripField::Synopsis), (QStringList{"Alarms blare. Lights flash.", "", "Wind."}));
        // Cast in order of first appearance; the narrator before the first heading has no
        // scene; the boneyard's ghost is gone; Mary once in her scene.
        QCOMPARE(Cast(run->doc), (QStringList{"NARRATOR", "MARY", "JOHN", "McCLANE"}));
        QCOMPARE(run->column(StripField::Assignments), (QStringList{"2,3", "4", ""}));
        // Headings' lines in the file are kept with the strips.
        QCOMPARE(run->column(StripField::Reserved8), (QStringList{"9", "30", "35"}));
    }

    void fountainPages()
    {
        // A heading and 200 lines of action: a blank line, then 54 lines on page 1, 55 on
        // pages 2 and 3, 36 on page 4; then a second heading with 20 more lines.
        QStringList lines{"INT. HALL - DAY", QString()};
        for (int k = 0; k < 200; ++k)
            lines << QStringLiteral("Line %1.").arg(k) << QString();
        lines.removeLast();
        QString script = lines.join(u'\n');
        // One action paragraph of 200 lines.
        script.replace(".\n\nLine", ".\nLine");
        script += "\n\nEXT. YARD - NIGHT\n\n";
        for (int k = 0; k < 20; ++k)
            script += QStringLiteral("Yard %1.\n").arg(k);
        auto run = Imported::fountain(script);
        QVERIFY(run->result.ok());
        QCOMPARE(run->column(StripField::ScriptPage), (QStringList{"1", "4"}));
        // 1 + 1 + 200 = 202 lines: 3 pages and 37 lines, the second scene starts a line
        // later and runs 22 lines.
        const double first = 3 + 38.0 / 55;
        QCOMPARE(run->field(1, StripField::PageLength).toDouble(), std::round(first * 8) / 8);
        QVERIFY(qAbs(run->pages() - (first + 22.0 / 55)) <= 1.0 / 16);
    }

    void fdxRules()
    {
        const QString content =
            Para("Scene Heading", "INT. KITCHEN - NIGHT", "Number=\"4A\"") +
            QStringLiteral(
                "<Paragraph Type=\"Scene Heading\" Number=\"5\"><SceneProperties Length=\"1 3/8\" Page=\"7\" "
                "Title=\"\"/><Text>EXT. GARDEN</Text><Text> - DAY</Text></Paragraph>\n") +
            Para("Action", "Rain on the window.") + Para("Character", "ANNA (V.O.)") +
            Para("Parenthetical", "(softly)") + Para("Dialogue", "Hello.") + "<Paragraph><DualDialogue>" +
            Para("Character", "BEN") + Para("Dialogue", "Hi.") + Para("Character", "CAL (CONT'D)") +
            Para("Dialogue", "Hey.") + "</DualDialogue></Paragraph>" + Para("Character", "ANNA") +
            Para("Dialogue", "Again.") + Para("Transition", "CUT TO:") + Para("Scene Heading", "INT. SHED - DAWN");
        auto run = Imported::fdx(Fdx(content, Para("", "") + Para("Title", "Garden Party") + Para("", "by Someone")));
        QVERIFY2(run->result.ok(), qPrintable(run->result.message()));
        QCOMPARE(run->doc.values.PictureTitle, "Garden Party");
        QCOMPARE(run->column(StripField::SceneNumber), (QStringList{"4A", "5", "3"}));
        QCOMPARE(run->column(StripField::Location), (QStringList{"KITCHEN", "GARDEN", "SHED"}));
        QCOMPARE(run->column(StripField::ScriptPage), (QStringList{"1", "7", "1"}));
        QCOMPARE(run->field(2, StripField::PageLength), "1.375");
        QCOMPARE(run->field(2, StripField::Synopsis), "Rain on the window.");
        QCOMPARE(Cast(run->doc), (QStringList{"ANNA", "BEN", "CAL"}));
        QCOMPARE(run->column(StripField::Assignments), (QStringList{"", "1,2,3", ""}));
    }

    void fdxNotAScript_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        Row("empty", QByteArray());
        Row("not XML", QByteArray("INT. KITCHEN - NIGHT\n"));
        Row("other XML", QByteArray("<?xml version=\"1.0\"?><html><body/></html>"));
        Row("cut short", Fdx(Para("Scene Heading", "INT. A - DAY")).left(120));
    }

    void fdxNotAScript()
    {
        QFETCH(QByteArray, bytes);
        auto run = std::make_unique<Imported>();
        AddScene(run->doc, "1", "1");
        run->result = ImportFdxFile(run->doc, WriteFile("bad.fdx", bytes), ScriptImportSettings());
        QVERIFY(!run->result.ok());
        QCOMPARE(run->prompter.prompts.size(), 1);
        QVERIFY(run->prompter.prompts.first().text.startsWith(QString::fromLatin1(FdxReadErrorText)));
        // The open schedule is left as it was.
        QCOMPARE(run->doc.strips.count(), 1);
    }

    void realFountainScripts_data()
    {
        Columns<QString, int, QStringList, double>("file", "headings", "cast", "printedPages");
        // Printed pages: the scripts' PDFs on US Letter (without the title page), the last
        // page counted by its lines.
        Row("Brick & Steel", "brick_and_steel.fountain", 8,
            QStringList{"STEEL", "BRICK", "DAN", "JACK", "COGNITO", "MINION", "HANDSOME MAN"}, 2.95);
        Row("My Living Memory", "my_living_memory.fountain", 9,
            QStringList{"JOE", "KATE", "MESSAGE MACHINE", "BETTY", "HARRY", "MATTHEW", "BURTON", "CONDUCTOR"}, 14.4);
        Row("Printing Trouble", "printing_trouble.fountain", 29,
            QStringList{"MIKE", "PRINTER", "INTERCOM", "MINA", "DONNA"}, 10.4);
    }

    void realFountainScripts()
    {
        auto [file, cast, printedPages] = Fetch<QString, QStringList, double>("file", "cast", "printedPages");
        const ResultOf<QStringList> lines = ReadImportText(QDir(DataDir).filePath(file));
        QVERIFY(lines.ok());
        auto run = std::make_unique<Imported>();
        run->result = ImportFountain(run->doc, *lines, ScriptImportSettings());
        QVERIFY(run->result.ok());
        QTEST(run->doc.strips.count(), "headings");
        QStringList names = Cast(run->doc);
        QCOMPARE(QSet<QString>(names.begin(), names.end()), QSet<QString>(cast.begin(), cast.end()));
        QCOMPARE(names.size(), cast.size());
        const double pages = run->pages();
        QVERIFY2(qAbs(pages - printedPages) <= 0.05 * printedPages,
                 qPrintable(QStringLiteral("%1 pages, printed %2").arg(pages).arg(printedPages)));
        // Every scene has a location and a length of at least an eighth.
        for (int s = 1; s <= run->doc.strips.count(); ++s) {
            QVERIFY(!run->field(s, StripField::Location).isEmpty());
            QVERIFY(run->field(s, StripField::PageLength).toDouble() >= 0.125);
        }
    }

    void fdxMatchesFountain()
    {
        // A real script written out as .fdx (without scene properties) gives the strips
        // and cast of its Fountain import: pages are counted as for Fountain.
        const ResultOf<QStringList> lines = ReadImportText(QDir(DataDir).filePath("my_living_memory.fountain"));
        QVERIFY(lines.ok());
        const ScreenplayText parsed = ParseFountain(*lines);
        static const char *const types[] = {"Scene Heading", "Action",     "Character", "Parenthetical",
                                            "Dialogue",      "Transition", "Action",    "Action"};
        QString content;
        for (const ScreenplayParagraph &p : parsed.paragraphs)
            content += Para(QString::fromLatin1(types[int(p.kind)]), p.text);
        auto fromFdx = Imported::fdx(Fdx(content, Para("Title", parsed.title)));
        auto fromFountain = std::make_unique<Imported>();
        fromFountain->result = ImportFountain(fromFountain->doc, *lines, ScriptImportSettings());
        QVERIFY(fromFdx->result.ok());
        QCOMPARE(Cast(fromFdx->doc), Cast(fromFountain->doc));
        for (StripField f :
             {StripField::SceneNumber, StripField::Location, StripField::DayNight, StripField::Assignments,
              StripField::PageLength, StripField::ScriptPage, StripField::Synopsis})
            QCOMPARE(fromFdx->column(f), fromFountain->column(f));
        QCOMPARE(fromFdx->doc.values.PictureTitle, "My Living Memory");
    }

    void doubts_data()
    {
        Columns<QString, QString>("name", "doubt");
        Row("page number", "12.", "no letters");
        Row("page with a letter", "12a.", "a page number");
        Row("page word", "Page 3", "a page number");
        Row("line of action", "A river.", "ends with a full stop");
        Row("exclamation", "BOOM!", "ends like a sentence");
        Row("long line", "Grabbing the snake and running", "more than three words");
        Row("transition", "Cut to black", "a transition");
        Row("name", "John smith", "");
        Row("name with a number", "Fisherman #1", "");
        Row("initials", "J.J.", "ends with a full stop");
        Row("three words", "Old man river", "");
        Row("quotation", "\"shrinker-teleporter.\"", "a quotation");
    }

    void doubts()
    {
        QFETCH(QString, name);
        QTEST(CharacterDoubt(name), "doubt");
    }

    void reviewRemovesWithAssignments()
    {
        auto run = Imported::fountain(QStringLiteral("INT. A - DAY\n\nANN\nHi.\n\nBOB\nHi.\n\nCAL\nHi.\n\n"
                                                     "INT. B - DAY\n\nCAL\nYo.\n\nDAN\nYo.\n\nBOB\nYo.\n"));
        QCOMPARE(run->column(StripField::Assignments), (QStringList{"1,2,3", "3,4,2"}));
        const QList<ReviewedCharacter> review = ReviewCharacters(run->doc);
        QCOMPARE(review.size(), 4);
        QCOMPARE(review.at(1).scenes, 2);
        QCOMPARE(review.at(3).scenes, 1);
        QCOMPARE(RemoveCharacters(run->doc, {2}), QStringList{"BOB"});
        QCOMPARE(Cast(run->doc), (QStringList{"ANN", "CAL", "DAN"}));
        QCOMPARE(run->column(StripField::Assignments), (QStringList{"1,2", "2,3"}));
        for (int e = 1; e <= 3; ++e)
            QCOMPARE(run->doc.elements[e][ElementField::BoardId], QString::number(e));
        QCOMPARE(RemoveCharacters(run->doc, {}), QStringList());
    }

    void summary()
    {
        auto run = Imported::fountain("INT. A - DAY\n\nANN\nHi.\n\nEXT. B\n\nBOB\nHi.\n\n.C\n\nWind.\n");
        ImportSummary s = SummarizeImport(run->doc, {"12."});
        QCOMPARE(s.scenes, 3);
        QCOMPARE(s.characters, 2);
        QCOMPARE(s.withoutTimeOfDay, 2);
        QCOMPARE(s.withoutLocation, 0);
        QCOMPARE(s.text(), QStringLiteral("Imported 3 scenes, 2 characters, 3/8 page.\r"
                                          "Guessed: 2 headings without a time of day (shown as ?).\r"
                                          "Dropped in the review: 12.."));
    }
};

TB_TEST_GUILESS_MAIN(TestScreenplayImport)
#include "tst_screenplayimport.moc"
