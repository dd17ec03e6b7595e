#include "TestSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleFile.h"

#include <QRandomGenerator>

using namespace tb;
using namespace tb::test;

namespace {

const QString HeaderError =
    QStringLiteral("Torvanbrigde cannot read this file. It may be the wrong type, or perhaps it is corrupted.");

// Pieces chosen to hit the encoding decisions: commas, quotes, blanks and line breaks,
// text that fits Windows-1252 (the first pieces), then text whose Windows-1252 bytes
// are also well-formed UTF-8 and text Windows-1252 cannot hold.
const QStringList Pieces = {"",          "Anna",    "a, b",       "say \"hi\"", " ",      "café",
                            "Zoë’s",     "“curly”", "€5 50%",     ",",          "\"",     "two\r\nlines",
                            "tab\there", "CAFÉ’S",  "Ã© and Â£5", "Ã",          "日本語", "😀",
                            "Łódź",      "ÿþ",      "ï»¿",        "Â",          "\u0081", QStringLiteral("\uFEFF")};
const int Windows1252Pieces = 13;

QString randomText(QRandomGenerator &rng, int kinds)
{
    QString text;
    const int parts = int(rng.bounded(4));
    for (int i = 0; i < parts; ++i)
        text += Pieces.at(int(rng.bounded(kinds)));
    return text;
}

// A schedule with awkward text in every kind of field.
void fillRandom(ScheduleDocument &doc, QRandomGenerator &rng, int scenes, int kinds = int(Pieces.size()))
{
    const auto text = [&] { return randomText(rng, kinds); };
    NewDocument(doc);
    doc.values.PictureTitle = text();
    doc.values.Company = text();
    doc.values.Director = text();
    doc.values.CompanyAddress = legacy::JoinCommaText({text(), text()});
    doc.values.StartDate = "46087";
    doc.values.AutoRestDayRule = "D67";
    doc.values.BoardZoom = 0.8;
    for (int i = 0; i < scenes; ++i) {
        const int row = AddScene(doc, QString::number(i + 1), QString::number(rng.bounded(1, 40) / 8.0));
        for (int f = 0; f < StripFieldCount; ++f) {
            const auto field = StripField(f);
            if (field != StripField::StripKind && field != StripField::PageLength && rng.bounded(3) == 0)
                doc.strips[row].setAt(f, text());
        }
        doc.strips[row].set(StripField::Notes, legacy::JoinCommaText({text(), text()}));
        if (rng.bounded(4) == 0)
            AddDivider(doc);
    }
    AddBanner(doc, text(), 2);
    const int elements = scenes / 3 + int(rng.bounded(3));
    for (int j = 0; j < elements; ++j) {
        const int row = AddElement(doc, text(), 1 + j % 15);
        doc.elements[row].set(ElementField::PersonName, text());
        doc.elements[row].set(ElementField::Reserved19, text());
    }
    doc.crew[1 + int(rng.bounded(50))].set(CrewField::Name, text());
    doc.crew[50].set(CrewField::Contact, text());
    SetModified(doc);
}

// The lines of a small schedule: a scene, a divider and an element.
QStringList SampleLines()
{
    ScheduleDocument doc;
    AddScene(doc, "1", "1 3/8");
    AddDivider(doc);
    AddElement(doc, "ANNA");
    SetModified(doc);
    return ScheduleFileLines(doc);
}

QByteArray fileBytes(const QStringList &lines)
{
    return legacy::EncodeFileText(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
}

} // namespace

class TestScheduleFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void emptyDocumentLayout()
    {
        ScheduleDocument doc;
        const QString path = TempPath("empty.tbf");
        QVERIFY(SaveDocument(doc, path).ok());
        const QByteArray bytes = ReadFileBytes(path);
        QVERIFY(bytes.endsWith("\r\n"));
        const QList<QByteArray> lines = bytes.chopped(1).split('\n');
        QCOMPARE(lines.size(), 223);
        for (const QByteArray &line : lines)
            QVERIFY(line.endsWith('\r'));
        QCOMPARE(lines[0], QByteArray(ScheduleFileHeader) + '\r');
        QCOMPARE(lines[1], "1.0\r");
        QCOMPARE(lines[12], "1\r"); // zoom 1.0 in the general float form
        QCOMPARE(lines[16], "0\r");
        QCOMPARE(lines[17], "10\r");
        QCOMPARE(lines[21], "0\r");
        QCOMPARE(lines[22], "0\r");
    }

    // The file's bytes decode to exactly the lines written, and encode again to the same
    // bytes. The reader takes a value from its line position alone, so equal lines are
    // an equal document.
    void tenThousandDocuments()
    {
        QRandomGenerator rng(20261124);
        int utf8 = 0;
        int windows1252 = 0;
        for (int n = 0; n < 10000; ++n) {
            ScheduleDocument doc;
            fillRandom(doc, rng, int(rng.bounded(4)));
            const QStringList lines = ScheduleFileLines(doc);
            const QByteArray bytes = fileBytes(lines);
            const QString text = legacy::DecodeFileText(bytes);
            QStringList read = text.split(QStringLiteral("\r\n"));
            QCOMPARE(read.takeLast(), QString());
            QCOMPARE(read, lines);
            QCOMPARE(fileBytes(read), bytes);
            (legacy::EncodeWindows1252(text) == bytes ? windows1252 : utf8) += 1;
        }
        // Both encodings were exercised.
        QVERIFY2(utf8 > 100 && windows1252 > 100, qPrintable(QStringLiteral("%1 %2").arg(utf8).arg(windows1252)));
    }

    // Through real files, every other one in Windows-1252: what is saved opens as the same
    // lines, and a second save gives the same bytes.
    void roundTripIsByteIdentical()
    {
        QRandomGenerator rng(7);
        const QString first = TempPath("rt-a.tbf");
        const QString second = TempPath("rt-b.tbf");
        for (int n = 0; n < 30; ++n) {
            ScheduleDocument doc;
            fillRandom(doc, rng, 1 + int(rng.bounded(40)), n % 2 ? Windows1252Pieces : int(Pieces.size()));
            const QStringList before = ScheduleFileLines(doc);
            QVERIFY(SaveDocument(doc, first).ok());
            ScheduleDocument reopened;
            QVERIFY(OpenDocument(reopened, first).ok());
            QCOMPARE(ScheduleFileLines(reopened), before);
            QVERIFY(SaveDocument(reopened, second).ok());
            const QByteArray a = ReadFileBytes(first);
            QCOMPARE(ReadFileBytes(second), a);
            QCOMPARE(a.count('\n'), 223 + 20 * (doc.strips.count() + doc.elements.count()));
        }
    }

    // A line break can never reach a record: the setter makes it a blank.
    void lineBreaksInRecords()
    {
        StripRecord strip;
        strip.set(StripField::Synopsis, QStringLiteral("one\r\ntwo\nthree\rfour"));
        QCOMPARE(strip[StripField::Synopsis], QStringLiteral("one two three four"));
        ScheduleDocument doc;
        doc.values.PictureTitle = QStringLiteral("A\nB");
        const QString path = TempPath(QStringLiteral("breaks.tbf"));
        QVERIFY(SaveDocument(doc, path));
        QVERIFY(OpenDocument(doc, path));
        QCOMPARE(doc.values.PictureTitle, QStringLiteral("A B"));
    }

    void earlierEditionBytesSurvive()
    {
        // Bytes as the earlier edition wrote them in its code page, including ones that
        // are not valid UTF-8 and a byte the code page leaves undefined.
        const QStringList lines = SampleLines();
        const QByteArray bytes = (lines.mid(0, 2).join("\r\n") + "\r\n").toLatin1() + "Ren\xE9\x92s \x81 Film\r\n" +
                                 (lines.mid(3).join("\r\n") + "\r\n").toLatin1();
        const QString in = TempPath("old.tbf");
        const QString out = TempPath("old-resaved.tbf");
        QVERIFY(WriteBytes(in, bytes));
        ScheduleDocument reopened;
        QVERIFY(OpenDocument(reopened, in).ok());
        QCOMPARE(reopened.values.PictureTitle, QString::fromUtf8("René’s \u0081 Film"));
        QVERIFY(SaveDocument(reopened, out).ok());
        QCOMPARE(ReadFileBytes(out), bytes);
    }

    void openProgressAndStatus()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 3; ++i)
            AddScene(doc, QString::number(i), "1");
        const QString path = TempPath("three.tbf");
        QVERIFY(SaveDocument(doc, path).ok());

        ScheduleDocument reopened;
        RecordingStatus status{reopened};
        RecordingView view{reopened};
        QVERIFY(OpenDocument(reopened, path).ok());
        QCOMPARE(status.progress.mid(0, 4), (QList<int>{33, 66, 100, 0}));
        QCOMPARE(status.panels.value(StatusSink::MessagePanel), "Opened OK.");
        QCOMPARE(reopened.FileName, path);
        QVERIFY(!reopened.Modified);
        QCOMPARE(view.recent.last(), path);
        QCOMPARE(view.title, "Torvanbridge -   (" + path + ") ");
        QVERIFY(!status.busy);
    }

    void lineRead_data()
    {
        // line: the line changed; zoom: the board zoom read
        Columns<int, QString, double>("line", "text", "zoom");
        Row("zoom zero", 12, "0", 1.0);
        Row("zoom below the floor", 12, "0.1", 1.0);
        Row("zoom at the floor", 12, "0.2", 0.2);
        Row("zoom with a comma separator", 12, "0,5", 0.5);
        Row("larger zoom", 12, "1.4", 1.4);
        // Lines the program does not use are read and ignored.
        Row("reserved line 19", 18, "anything", 1.0);
        Row("reserved line 21", 20, "12", 1.0);
    }

    void lineRead()
    {
        auto [line, text, zoom] = Fetch<int, QString, double>("line", "text", "zoom");
        const QStringList good = ScheduleFileLines(ScheduleDocument());
        QStringList lines = good;
        lines[line] = text;
        const QString path = TempPath("line.tbf");
        QVERIFY(WriteBytes(path, fileBytes(lines)));
        ScheduleDocument reopened;
        RecordingView view{reopened};
        QVERIFY(OpenDocument(reopened, path).ok());
        QCOMPARE(reopened.values.BoardZoom, zoom);
        QCOMPARE(view.zoom, zoom);
        // Apart from the zoom, the document is a new one.
        reopened.values.BoardZoom = 1.0;
        QCOMPARE(ScheduleFileLines(reopened), good);
    }

    void malformed_data()
    {
        const QStringList good = SampleLines();
        auto with = [&](int line, const QString &text) {
            QStringList lines = good;
            lines[line] = text;
            return (lines.join("\r\n") + "\r\n").toLatin1();
        };
        // message: the earlier edition's text the message starts with
        // cause: what went wrong, in plain words
        Columns<QByteArray, QString, QString, QString>("bytes", "message", "cause", "status");
        // The malformed-input corpus holds many more; these check the document left behind.
        Row("empty file", QByteArray(), HeaderError, "is not a Torvanbridge schedule", "Error reading file.");
        const QString open = "Error opening file ";
        Row("zoom not a number", with(12, "wide"), open, "line 13 should hold a number", "Error opening file.");
        Row("hold days not a number", with(17, "ten"), open, "line 18 should hold a number", "Error opening file.");
        Row("strip count not a number", with(21, "x1"), open, "line 22 should hold a number", "Error opening file.");
        Row("element count negative", with(22, "-1"), open, "Line 23 gives -1 as the number of elements.",
            "Error opening file.");
        Row("strip count too large for the file", with(21, "3"), open, "The file is cut short: it ends at line",
            "Error opening file.");
        // Cut after any line, the file names the last line it has.
        for (int kept = 1; kept < good.size(); ++kept) {
            QTest::addRow("cut after line %d", kept)
                << (good.mid(0, kept).join("\r\n") + "\r\n").toLatin1() << open
                << QStringLiteral("The file is cut short: it ends at line %1,").arg(kept)
                << QString("Error opening file.");
        }
    }

    // A file that fails to open leaves an empty, untitled document and a message that
    // names the file and the cause.
    void malformed()
    {
        auto [bytes, message, cause] = Fetch<QByteArray, QString, QString>("bytes", "message", "cause");
        const QString path = TempPath("bad.tbf");
        QVERIFY(WriteBytes(path, bytes));

        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        RecordingStatus sink{doc};
        RecordingView view{doc};
        AddScene(doc, "old", "1");
        doc.FileName = "/old/path.tbf";
        const Result result = OpenDocument(doc, path);
        QVERIFY(!result.ok());
        QVERIFY2(result.message().startsWith(message), qPrintable(result.message()));
        QVERIFY2(result.message().contains(cause), qPrintable(result.message()));
        QVERIFY(result.message().contains(QDir::toNativeSeparators(path)));
        QCOMPARE(prompter.texts(), QStringList{result.message()});
        QCOMPARE(prompter.prompts.first().kind, MessageKind::Error);
        QTEST(sink.panels.value(StatusSink::MessagePanel), "status");
        QCOMPARE(doc.FileName, QString());
        QVERIFY(!doc.Modified);
        QVERIFY(!sink.busy);
        QCOMPARE(doc.strips.count(), 0);
        QVERIFY(!view.recent.contains(path));
    }

    void wholeFileWithoutLastLineEnd()
    {
        QStringList lines = SampleLines();
        lines.last() = "x";
        const QString path = TempPath("whole.tbf");
        QVERIFY(WriteBytes(path, lines.join("\r\n").toLatin1()));
        ScheduleDocument complete;
        QVERIFY(OpenDocument(complete, path).ok());
        QCOMPARE(ScheduleFileLines(complete), lines);
    }

    void failedSaveKeepsState()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        RecordingStatus status{doc};
        AddScene(doc, "1", "1");
        SetModified(doc);
        const QString path = TempPath("no-such-folder/sub/x.tbf");
        const Result result = SaveDocument(doc, path);
        QVERIFY(!result.ok());
        QCOMPARE(prompter.texts(),
                 QStringList{"Error saving file " + path +
                             ". Try again using SaveAs from the file menu.\r\rNo such file or directory."});
        QCOMPARE(status.panels.value(StatusSink::MessagePanel), "Error saving file.");
        QCOMPARE(status.progress.last(), 0);
        QVERIFY(doc.Modified);
        QVERIFY(!QFile::exists(path));
    }
};

TB_TEST_GUILESS_MAIN(TestScheduleFile)
#include "tst_schedulefile.moc"
