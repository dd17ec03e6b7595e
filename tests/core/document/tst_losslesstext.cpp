// What is saved reads back exactly: every character, in whatever encoding the writer
// chose, and a second save gives the same bytes. Ten thousand generated documents
// with accents, typographic quotes, the euro sign, emoji, CJK, commas, quotes, empty
// fields and values that hold line breaks.

#include "TestSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleFile.h"

#include <QRandomGenerator>

using namespace tb;
using namespace tb::test;

namespace {

// Pieces chosen to hit the encoding decisions: text that fits Windows-1252, text whose
// Windows-1252 bytes are also well-formed UTF-8, and text Windows-1252 cannot hold.
const QStringList Pieces = {
    QString(),
    QStringLiteral("Anna"),
    QStringLiteral("a, b"),
    QStringLiteral("say \"hi\""),
    QStringLiteral(" "),
    QStringLiteral("café"),
    QStringLiteral("Zoë’s"),
    QStringLiteral("“curly”"),
    QStringLiteral("€5"),
    QStringLiteral("CAFÉ’S"),
    QStringLiteral("Ã© and Â£5"),
    QStringLiteral("Ã"),
    QStringLiteral("日本語"),
    QStringLiteral("😀"),
    QStringLiteral("Łódź"),
    QStringLiteral("ÿþ"),
    QStringLiteral("ï»¿"),
    QStringLiteral("\uFEFF"),
    QStringLiteral(","),
    QStringLiteral("\""),
    QStringLiteral("two\r\nlines"),
    QStringLiteral("tab\there"),
    QStringLiteral("Â"),
    QStringLiteral("\u0081"),
};

QString randomText(QRandomGenerator &rng)
{
    QString text;
    const int parts = int(rng.bounded(4));
    for (int i = 0; i < parts; ++i)
        text += Pieces.at(int(rng.bounded(quint32(Pieces.size()))));
    return text;
}

void fill(ScheduleDocument &doc, QRandomGenerator &rng)
{
    NewDocument(doc);
    doc.values.PictureTitle = randomText(rng);
    doc.values.Company = randomText(rng);
    doc.values.Director = randomText(rng);
    doc.values.CompanyAddress = legacy::JoinCommaText({randomText(rng), randomText(rng)});
    const int scenes = int(rng.bounded(4));
    for (int i = 0; i < scenes; ++i) {
        const int row = AddScene(doc, QString::number(i + 1), QStringLiteral("1"));
        for (const StripField f : {StripField::Synopsis, StripField::Location, StripField::SetName})
            doc.strips[row].set(f, randomText(rng));
        doc.strips[row].set(StripField::Notes, legacy::JoinCommaText({randomText(rng), randomText(rng)}));
    }
    const int elements = int(rng.bounded(3));
    for (int i = 0; i < elements; ++i) {
        const int row = AddElement(doc, randomText(rng));
        doc.elements[row].set(ElementField::PersonName, randomText(rng));
    }
    doc.crew[1 + int(rng.bounded(50))].set(CrewField::Name, randomText(rng));
}

QByteArray fileBytes(const QStringList &lines)
{
    return legacy::EncodeFileText(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
}

} // namespace

class TestLosslessText : public QObject
{
    Q_OBJECT

private slots:
    // The file's bytes decode to exactly the lines written, and encode again to the
    // same bytes. The reader takes a value from its line position alone, so equal
    // lines are an equal document.
    void tenThousandDocuments()
    {
        QRandomGenerator rng(20261124);
        int utf8 = 0;
        int windows1252 = 0;
        for (int n = 0; n < 10000; ++n) {
            ScheduleDocument doc;
            fill(doc, rng);
            const QStringList lines = ScheduleFileLines(doc);
            const QByteArray bytes = fileBytes(lines);
            const QString text = legacy::DecodeFileText(bytes);
            QStringList read = text.split(QStringLiteral("\r\n"));
            QCOMPARE(read.takeLast(), QString());
            if (read != lines) {
                for (int i = 0; i < lines.size(); ++i)
                    QCOMPARE(read.value(i), lines.at(i));
            }
            QCOMPARE(fileBytes(read), bytes);
            (legacy::EncodeWindows1252(text) == bytes ? windows1252 : utf8) += 1;
        }
        // Both encodings were exercised.
        QVERIFY2(utf8 > 500 && windows1252 > 500, qPrintable(QStringLiteral("%1 %2").arg(utf8).arg(windows1252)));
    }

    // Through real files: open, save, open, save gives identical bytes, and the text
    // typed is the text read. (The first open adds the derived day fields.)
    void throughFiles()
    {
        QRandomGenerator rng(7);
        const QString first = TempPath(QStringLiteral("first.tbf"));
        const QString second = TempPath(QStringLiteral("second.tbf"));
        const QString third = TempPath(QStringLiteral("third.tbf"));
        for (int n = 0; n < 30; ++n) {
            ScheduleDocument doc;
            fill(doc, rng);
            QVERIFY(SaveDocument(doc, first));
            ScheduleDocument reopened;
            QVERIFY(OpenDocument(reopened, first));
            QVERIFY(SaveDocument(reopened, second));
            QVERIFY(OpenDocument(reopened, second));
            QVERIFY(SaveDocument(reopened, third));
            QCOMPARE(ReadFileBytes(third), ReadFileBytes(second));
            QCOMPARE(reopened.values.PictureTitle, OneLineValue(doc.values.PictureTitle));
            QCOMPARE(reopened.strips.count(), doc.strips.count());
            for (int i = 1; i <= doc.strips.count(); ++i) {
                for (const StripField f : {StripField::Synopsis, StripField::Location, StripField::Notes})
                    QCOMPARE(reopened.strips[i][f], doc.strips[i][f]);
            }
            for (int i = 1; i <= doc.elements.count(); ++i)
                QVERIFY(reopened.elements[i] == doc.elements[i]);
        }
    }

    // The cases that used to change on the next open, and the earlier edition's files.
    void decoding_data()
    {
        Columns<QByteArray, QString>("bytes", "text");
        Row("windows-1252 as the earlier edition wrote", QByteArray("caf\xE9 \x93q\x94 \x80"), "café “q” €");
        Row("utf-8", QByteArray("caf\xC3\xA9"), "café");
        Row("utf-8 with a mark",
            QByteArray("\xEF\xBB\xBF"
                       "caf\xC3\xA9"),
            "café");
        Row("utf-8 mark, stray byte", QByteArray("\xEF\xBB\xBF[Files]\r\nx=\xE9"), "[Files]\r\nx=\uFFFD");
        Row("utf-16 le",
            QByteArray("\xFF\xFE"
                       "I\0N\0T\0.\0 \0\xE9\0",
                       14),
            "INT. é");
        Row("utf-16 be", QByteArray("\xFE\xFF\0I\0N\0T\x65\xE5", 10), "INT日");
        Row("utf-16, odd byte left out", QByteArray("\xFF\xFEI\0N", 5), "I");
    }
    void decoding()
    {
        QFETCH(QByteArray, bytes);
        QTEST(legacy::DecodeFileText(bytes), "text");
    }

    void encoding_data()
    {
        Columns<QString, QByteArray>("text", "bytes");
        Row("fits windows-1252", QStringLiteral("café “q”"), QByteArray("caf\xE9 \x93q\x94"));
        Row("windows-1252 bytes that read as utf-8", "CAFÉ’S", QByteArray("CAF\xC3\x89\xE2\x80\x99S"));
        Row("mojibake-looking text", "Ã© and Â£5",
            QByteArray("\xC3\x83\xC2\xA9 and \xC3\x82\xC2\xA3"
                       "5"));
        Row("beyond windows-1252", "日本", QByteArray("\xE6\x97\xA5\xE6\x9C\xAC"));
        Row("looks like a mark", "ÿþx", QByteArray("\xC3\xBF\xC3\xBEx"));
        Row("begins with a mark", QStringLiteral("\uFEFFx"), QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFx"));
    }
    void encoding()
    {
        auto [text, bytes] = Fetch<QString, QByteArray>("text", "bytes");
        QCOMPARE(legacy::EncodeFileText(text), bytes);
        QCOMPARE(legacy::DecodeFileText(bytes), text);
    }

    // A line break can never reach a record: the setter makes it a blank.
    void lineBreaksInRecords()
    {
        StripRecord strip;
        strip.set(StripField::Synopsis, QStringLiteral("one\r\ntwo\nthree\rfour"));
        QCOMPARE(strip[StripField::Synopsis], QStringLiteral("one two three four"));
        ScheduleDocument doc;
        NewDocument(doc);
        doc.values.PictureTitle = QStringLiteral("A\nB");
        const QString path = TempPath(QStringLiteral("breaks.tbf"));
        QVERIFY(SaveDocument(doc, path));
        QVERIFY(OpenDocument(doc, path));
        QCOMPARE(doc.values.PictureTitle, QStringLiteral("A B"));
    }
};

TB_TEST_GUILESS_MAIN(TestLosslessText)
#include "tst_losslesstext.moc"
