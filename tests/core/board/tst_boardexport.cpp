// The board exported as a spreadsheet (CSV) and as a web page (HTML).

#include "TestSupport.h"

#include "board/BoardExport.h"

#include <QImage>
#include <QRegularExpression>

using namespace tb;
using namespace tb::test;

namespace {

// Splits CSV text into rows of fields the way RFC 4180 reads it: each field, quoted or not,
// ends in a comma or a CR LF.
QList<QStringList> parseCsv(const QString &text)
{
    static const QRegularExpression field(QStringLiteral(R"re(("(?:[^"]|"")*"|[^",\r\n]*)(,|\r\n))re"));
    QList<QStringList> rows{{}};
    for (const QRegularExpressionMatch &m : field.globalMatch(text)) {
        QString value = m.captured(1);
        if (value.startsWith(u'"'))
            value = value.mid(1, value.size() - 2).replace(QStringLiteral("\"\""), QStringLiteral("\""));
        rows.last().append(value);
        if (m.captured(2) == QStringLiteral("\r\n"))
            rows.append(QStringList());
    }
    rows.removeLast();
    return rows;
}

// Scene 12A (1 3/8 pages, exterior night, with notes and two elements), a divider, a
// two-day banner and scene 13; start Monday 5 April 2027.
void makeBoard(ScheduleDocument &doc)
{
    doc.values.PictureTitle = "Rain & <Shine>";
    doc.values.StartDate = "46482";
    const int first = AddScene(doc, "12A", "1.375", "N", "E");
    StripRecord &s = doc.strips[first];
    s.set(StripField::Location, "QUAY, NORTH");
    s.set(StripField::SetName, "HARBOUR \"END\"");
    s.set(StripField::Synopsis, "Mara runs <fast>");
    s.set(StripField::Notes, "\"Check tide, twice\",Boat");
    s.set(StripField::StripId, "40");
    AddDivider(doc);
    AddBanner(doc, "Travel", 2);
    AddScene(doc, "13", "0.5");
    AddElement(doc, "LAMP", 5, "Prp");
    AddElement(doc, "ANNA", 1, "7");
    doc.strips[first].set(StripField::Assignments, "2,1");
    SetModified(doc);
}

} // namespace

class TestBoardExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatOfName_data()
    {
        // format: -1 none
        Columns<QString, int>("path", "format");
        Row("csv", "/tmp/a.csv", int(BoardExportFormat::Spreadsheet));
        Row("CSV", "b.CSV", int(BoardExportFormat::Spreadsheet));
        Row("html", "c.html", int(BoardExportFormat::Html));
        Row("htm", "d.Htm", int(BoardExportFormat::Html));
        Row("pdf", "e.pdf", -1);
        Row("no extension", "csv", -1);
    }
    void formatOfName()
    {
        QFETCH(QString, path);
        const std::optional<BoardExportFormat> found = BoardExportFormatOf(path);
        QTEST(found ? int(*found) : -1, "format");
    }

    void spreadsheetFile()
    {
        ScheduleDocument doc;
        makeBoard(doc);
        const QString path = TempPath("board.csv");
        QVERIFY(ExportBoard(doc, BoardStyle(), BoardExportFormat::Spreadsheet, path).ok());
        const QByteArray bytes = ReadFileBytes(path);
        QVERIFY(bytes.endsWith("\r\n"));
        const QList<QStringList> rows = parseCsv(QString::fromUtf8(bytes));
        QCOMPARE(rows.size(), 1 + doc.strips.count());
        const QStringList header = rows.at(0);
        // The column titles are pinned by golden_outputs: sixteen columns, then one a category.
        QCOMPARE(header.size(), 16 + 15);
        for (const QStringList &row : rows)
            QCOMPARE(row.size(), header.size());
        // The cells of one row under the named columns, joined by "|".
        auto cells = [&](int row, const QStringList &names) {
            QStringList out;
            for (const QString &name : names)
                out.append(rows.at(row).at(header.indexOf(name)));
            return out.join(u'|');
        };

        // The scene: day 1, its date, words for INT/EXT and D/N, quoted texts intact.
        QCOMPARE(cells(1, {"Kind", "Day", "Shooting day", "Date", "Scene", "INT/EXT", "D/N", "Set", "Location"}),
                 "Scene|1|1|2027-04-05|12A|EXT|NIGHT|HARBOUR \"END\"|QUAY, NORTH");
        QCOMPARE(cells(1, {"Pages", "Eighths", "Sheet", "Notes", "Cast", "Props"}),
                 "1.375|11|40|Check tide, twice\nBoat|7 - ANNA|LAMP");
        // The divider carries its day's total; the banner stands for days 2 and 3.
        QCOMPARE(cells(2, {"Kind", "Eighths", "Scene"}), "Day divider|11|");
        QCOMPARE(cells(3, {"Kind", "Synopsis", "Day", "Date"}), "Banner|Travel|3|2027-04-07");
        // The last scene falls in the day after the banner.
        QCOMPARE(cells(4, {"Day", "Shooting day", "Pages", "Cast"}), "4|3|0.5|");

        // A failed write names the file and leaves what was there before.
        const QString missing = TempPath("no-such-folder/board.html");
        const Result failed = ExportBoard(doc, BoardStyle(), BoardExportFormat::Html, missing);
        QVERIFY(!failed.ok());
        QVERIFY(failed.message().contains(missing));
        QVERIFY(!QFile::exists(missing));
        QFile::setPermissions(path, QFile::ReadOwner);
        if (!QFile(path).open(QIODevice::WriteOnly)) { // the read-only file is honoured
            QVERIFY(!ExportBoard(doc, BoardStyle(), BoardExportFormat::Html, path).ok());
            QCOMPARE(ReadFileBytes(path), bytes);
        }
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    }

    void webPage()
    {
        ScheduleDocument doc;
        makeBoard(doc);
        QImage logo(40, 20, QImage::Format_RGB32);
        logo.fill(Qt::red);
        QVERIFY(logo.save(TempPath("logo.png")));
        doc.values.LogoFile = TempPath("logo.png");
        BoardStyle style;
        style.setSlot(StripSlot::NightExt, QColor(1, 2, 3), QColor(250, 251, 252));
        const QString html = QString::fromUtf8(BoardHtml(doc, style));

        QVERIFY(html.startsWith("<!DOCTYPE html>"));
        QVERIFY(html.contains("<title>Rain &amp; &lt;Shine&gt;</title>"));
        QVERIFY(html.contains("Mara runs &lt;fast&gt;"));
        // The strip in its board colours, the day closed by its divider.
        QVERIFY(html.contains("background:#010203;color:#fafbfc"));
        QVERIFY(html.contains("Shooting day 1 \u2013 Mon, April 5, 2027"));
        QVERIFY(html.contains("End of shooting day 1"));
        QVERIFY(html.contains("Travel (2 days)"));
        // Self-contained: the logo inside, nothing fetched from elsewhere.
        QVERIFY(html.contains("src=\"data:image/png;base64,"));
        QVERIFY(!html.contains("http"));
        QVERIFY(!html.contains("<link"));
        QVERIFY(!html.contains("<script"));
    }
};

TB_TEST_GUILESS_MAIN(TestBoardExport)
#include "tst_boardexport.moc"
