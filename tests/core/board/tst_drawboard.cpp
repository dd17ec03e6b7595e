#include "TestSupport.h"

#include "board/BoardBuffer.h"
#include "board/DrawBoard.h"
#include "document/DayCalculation.h"
#include "document/ScheduleFile.h"

#include <QImage>
#include <QPainter>

using namespace tb;
using namespace tb::test;

Q_DECLARE_METATYPE(tb::StripRecord)

namespace {

QString ExamplePath()
{
    return QStringLiteral(TB_SOURCE_DIR) + QStringLiteral("/examples/harbour-lights.tbf");
}

const BoardGeometry G(1.0); // 40 wide strips, 18 high rows, 200 wide column, 288 high header

// A style whose every slot has a colour of its own, so a pixel tells the slot.
BoardStyle distinctStyle()
{
    BoardStyle style;
    for (int slot = 1; slot <= StripSlotCount; ++slot)
        style.setSlot(StripSlot(slot), QColor(20 * slot, 255 - 20 * slot, 100), QColor(0, 0, 10 * slot));
    return style;
}

struct Drawn
{
    QImage image;
    QString result; // the kept text form
};

// The board drawn on a magenta image, inside the clip when one is given.
Drawn draw(ScheduleDocument &doc, const BoardStyle &style, QSize size, const BoardDrawOptions &options = {},
           const QRect &clip = {})
{
    Drawn d;
    d.image = QImage(size, QImage::Format_RGB32);
    d.image.fill(Qt::magenta);
    QPainter p(&d.image);
    if (!clip.isNull())
        p.setClipRect(clip);
    d.result = DrawBoard(doc, style, options, p).lastDrawnText();
    return d;
}

// The middle of strip column i (counted from the first drawn), inside element row r
// (1-based from the first drawn), away from the grid lines.
QPoint inStrip(int i, int r)
{
    return QPoint(G.colW + (i - 1) * G.stripW + G.stripW / 2, G.headerH + (r - 1) * G.rowH + G.rowH / 2);
}

// Whether any pixel in the rectangle passes the test.
template <typename Test>
bool anyPixel(const QImage &image, const QRect &rect, Test test)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
            if (test(image.pixelColor(x, y)))
                return true;
    return false;
}

// Whether any pixel in the rectangle differs from the background.
bool hasInk(const QImage &image, const QRect &rect, const QColor &background)
{
    return anyPixel(image, rect, [&](QColor c) { return c != background; });
}

StripRecord strip(const QString &kind, const QString &dn = {}, const QString &ie = {}, const QString &colour = {})
{
    StripRecord s;
    s.set(StripField::StripKind, kind);
    s.set(StripField::DayNight, dn);
    s.set(StripField::IntExt, ie);
    s.set(StripField::StripColour, colour);
    return s;
}

// The strip with the fields set.
StripRecord with(StripRecord s, std::initializer_list<std::pair<StripField, QString>> fields)
{
    for (const auto &[field, value] : fields)
        s.set(field, value);
    return s;
}

void addElements(ScheduleDocument &doc, int n)
{
    for (int i = 1; i <= n; ++i) {
        AddElement(doc, QStringLiteral("ELEMENT %1").arg(i), 1, QString::number(i));
        doc.elements[i].set(ElementField::PrintOnBoard, QStringLiteral("1"));
    }
}

} // namespace

class TestDrawBoard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void geometry_data()
    {
        Columns<double, int, int, int, int>("scale", "stripW", "rowH", "colW", "margin");
        Row("60%", 0.6, 24, 11, 120, 2), Row("90%", 0.9, 36, 16, 180, 3), Row("130%", 1.3, 52, 23, 260, 4),
            Row("140%", 1.4, 56, 25, 280, 4);
    }
    void geometry()
    {
        QFETCH(double, scale);
        const BoardGeometry g(scale);
        QTEST(g.stripW, "stripW");
        QTEST(g.rowH, "rowH");
        QTEST(g.colW, "colW");
        QTEST(g.margin, "margin");
        QCOMPARE(g.headerH, 16 * g.rowH);
    }
    void rounding()
    {
        QCOMPARE(BoardRound(2.5), 2);
        QCOMPARE(BoardRound(3.5), 4);
        QCOMPARE(BoardRound(12.6), 13);
        QCOMPARE(BoardRound(-1.5), -2);
        // Font heights follow the device's resolution, rounded the same way.
        QCOMPARE(BoardFontHeight(14, 1.0, 96, 96), 14);
        QCOMPARE(BoardFontHeight(15, 0.7, 96, 96), 10); // 10.5 rounds to even
        QCOMPARE(BoardFontHeight(14, 1.0, 600, 1200), 28);
        QCOMPARE(BoardFontHeight(16, 1.4, 300, 300), 22);
        // A font's height is its cell: ascent and descent together.
        const QFont f = BoardFont(QStringLiteral("Arial"), 28);
        const QFontMetricsF fm(f);
        QVERIFY2(qAbs(fm.ascent() + fm.descent() - 28) <= 1.5, qPrintable(QString::number(fm.ascent() + fm.descent())));
    }
    void zoomSteps_data()
    {
        Columns<double, int, double>("scale", "index", "snapped");
        Row("60%", 0.6, 0, 0.6), Row("70%", 0.7, 1, 0.7), Row("100%", 1.0, 4, 1.0), Row("140%", 1.4, 8, 1.4),
            Row("125%", 1.25, -1, 1.0), Row("50%", 0.5, -1, 1.0), Row("150%", 1.5, -1, 1.0), Row("zero", 0.0, -1, 1.0);
    }
    void zoomSteps()
    {
        auto [scale, index] = Fetch<double, int>("scale", "index");
        QCOMPARE(ZoomIndexForScale(scale), index);
        QTEST(SnapBoardScale(scale), "snapped");
        if (index >= 0)
            QCOMPARE(ScaleForZoomIndex(index), scale);
    }
    void hitTesting()
    {
        // Truncation toward zero: the few pixels left of the first strip still hit it.
        QCOMPARE(GetStripNum(G, 190, 1), 1);
        QCOMPARE(GetStripNum(G, 239, 1), 1);
        QCOMPARE(GetStripNum(G, 240, 1), 2);
        QCOMPARE(GetStripNum(G, 240, 5), 6);
        QCOMPARE(GetStripNum(G, 200 + 40 * 30, 1), 31); // no clamping
        QCOMPARE(GetElementNum(G, 288, 289, 1), 1);
        QCOMPARE(GetElementNum(G, 288, 288 + 18 * 3, 4), 7);
    }
    void stripColours_data()
    {
        Columns<StripRecord, QColor, QColor>("strip", "background", "text");
        const BoardStyle s = distinctStyle();
        auto slot = [&](StripSlot x) { return s.backgroundOf(x); };
        auto ink = [&](StripSlot x) { return s.textOf(x); };
        // A strip drawn in the colours of its slot.
        auto kind = [&](const char *tag, const StripRecord &strip, StripSlot x) { Row(tag, strip, slot(x), ink(x)); };
        kind("day ext", strip("1", "D", "E"), StripSlot::DayExt),
            kind("day int", strip("1", "D", "I"), StripSlot::DayInt),
            kind("day int/ext", strip("1", "D", "I/E"), StripSlot::DayIntExt),
            kind("night ext", strip("1", "N", "E"), StripSlot::NightExt),
            kind("night int", strip("1", "N", "I"), StripSlot::NightInt),
            kind("night i/e", strip("1", "N", "I/E"), StripSlot::NightIntExt),
            kind("dawn is day", strip("1", "DWN", "E"), StripSlot::DayExt),
            kind("dusk is night", strip("1", "DSK", "I"), StripSlot::NightInt),
            kind("lower case", strip("1", "d", "I"), StripSlot::Unknown),
            kind("odd int/ext", strip("1", "D", "X"), StripSlot::Unknown),
            kind("blank", strip("1"), StripSlot::Unknown),
            kind("error kind", strip("7", "N", "E"), StripSlot::NightExt),
            kind("divider", strip("2", "D", "I"), StripSlot::DayDivider),
            kind("rest day", strip("3"), StripSlot::AutoRestDay);
        Row("banner pair", strip("4", {}, {}, "clNavy,clWhite"), QColor(0, 0, 128), QColor(Qt::white)),
            Row("banner hex", strip("4", {}, {}, "$0000FF00,clYellow"), QColor(0, 255, 0), QColor(Qt::yellow)),
            Row("banner no comma", strip("4", {}, {}, "clRed"), slot(StripSlot::Banner), slot(StripSlot::Banner)),
            Row("banner bad name", strip("4", {}, {}, "clNothing,nonsense"), slot(StripSlot::Banner),
                ink(StripSlot::Banner));
    }
    void stripColours()
    {
        QFETCH(StripRecord, strip);
        const BoardStyle style = distinctStyle();
        QTEST(StripColour(strip, style), "background");
        QTEST(StripTextColour(strip, style), "text");
    }
    void usesElement_data()
    {
        Columns<QString, int, bool>("list", "element", "uses");
        Row("first", "1,5,12", 1, true), Row("middle", "1,5,12", 5, true), Row("last", "1,5,12", 12, true),
            Row("digit of another", "1,5,12", 2, false), Row("empty", "", 1, false),
            Row("leading blank", " 7", 7, true), Row("not a number", "x,3", 3, true);
    }
    void usesElement()
    {
        auto [list, element] = Fetch<QString, int>("list", "element");
        StripRecord s = strip("1");
        s.set(StripField::Assignments, list);
        QTEST(UsesElement(s, element), "uses");
    }
    void descriptionTexts_data()
    {
        Columns<StripRecord, int, int, bool, QString, QString>("strip", "line1", "line2", "shootingDays", "first",
                                                               "second");

        const StripRecord scene = with(strip("1", "D", "I"), {{StripField::SceneNumber, "12A"},
                                                              {StripField::Location, "Harbour Wall"},
                                                              {StripField::Synopsis, "Tom waits"},
                                                              {StripField::Sequence, "Act two"},
                                                              {StripField::Notes, "Rain towers"}});
        Row("location over synopsis", scene, 12, 7, true, "HARBOUR WALL", "Tom waits"),
            Row("scene and sequence", scene, 2, 11, true, "Scene 12A", "Act two"),
            Row("notes", scene, 19, 7, true, "Rain towers", "Tom waits");

        const StripRecord divider = with(strip("2"), {{StripField::DayNumber, "4"},
                                                      {StripField::ShootDayNumber, "3"},
                                                      {StripField::SceneNumber, "Thu, April 8, 2027"},
                                                      {StripField::PageLength, "4.875"}});
        Row("divider, shooting days", divider, 12, 7, true, "END SHOOT DAY 3    (4 7/8 pages)", "Thu, April 8, 2027"),
            Row("divider, production days", divider, 12, 7, false, "END DAY 4    (4 7/8 pages)", "Thu, April 8, 2027");
        Row("divider without pages", with(divider, {{StripField::PageLength, "0"}}), 12, 7, false, "END DAY 4    ",
            "Thu, April 8, 2027");

        const StripRecord rest =
            with(strip("3"), {{StripField::DayNumber, "6"}, {StripField::SceneNumber, "Sat, April 10, 2027"}});
        Row("rest day, shooting days", rest, 12, 7, true, "REST DAY", "Sat, April 10, 2027"),
            Row("rest day, production days", rest, 12, 7, false, "DAY 6  -  REST DAY", "Sat, April 10, 2027");

        const StripRecord banner = with(strip("4"), {{StripField::Synopsis, "TRAVEL DAY"}});
        Row("banner of two days", with(banner, {{StripField::DayCount, "2"}}), 12, 7, true, "TRAVEL DAY",
            "(2 day banner)");
        Row("banner of no days", with(banner, {{StripField::DayCount, "0"}}), 12, 7, true, "TRAVEL DAY", "  ");

        Row("error kind", strip("9"), 12, 7, true, "???", "Strip type error");
    }
    void descriptionTexts()
    {
        QFETCH(StripRecord, strip);
        BoardStyle style;
        auto [line1, line2, shootingDays] = Fetch<int, int, bool>("line1", "line2", "shootingDays");
        style.DescLine1 = line1;
        style.DescLine2 = line2;
        style.ShowShootingDays = shootingDays;
        QTEST(FirstDescriptionText(strip, style), "first");
        QTEST(SecondDescriptionText(strip, style), "second");
    }
    void hintTexts_data()
    {
        Columns<StripRecord, QString>("strip", "hint");
        const StripRecord scene = with(strip("1", "DSK", "I/E"), {{StripField::SceneNumber, "31"},
                                                                  {StripField::Location, "Truro market"},
                                                                  {StripField::Synopsis, "The crowd turns"}});
        Row("scene", scene, "Scene: 31\rINT/EXT. TRURO MARKET - DUSK\rThe crowd turns");
        Row("scene, odd int/ext", with(scene, {{StripField::IntExt, "X"}, {StripField::DayNight, "DWN"}}),
            "Scene: 31\rTRURO MARKET - DAWN\rThe crowd turns");
        Row("divider",
            with(strip("2"),
                 {{StripField::DayNumber, "5"}, {StripField::ShootDayNumber, "4"}, {StripField::PageLength, "2.25"}}),
            "END SHOOTING DAY 4\rEND PRODUCTION DAY 5\rTotal pages: 2 2/8"),
            Row("rest day", strip("3"), "REST DAY"), Row("banner", strip("4", {}, {}, "clRed,clWhite"), "");
    }
    void hintTexts()
    {
        QFETCH(StripRecord, strip);
        QTEST(StripHintText(strip), "hint");
    }

    void drawsTheBoard()
    {
        // A day exterior scene with a long location, a night interior scene, a divider and a
        // banner with a long text; strips 2 and 3 and element row 2 selected. Elements 1 and 4
        // are not printed on the board; the first scene has element 3, "C".
        ScheduleDocument doc;
        const QString longText = QStringLiteral("A VERY LONG LOCATION NAME THAT NEVER SEEMS TO END AT ALL");
        AddScene(doc, "1", "1", "D", "E");
        doc.strips[1].set(StripField::Location, longText);
        AddScene(doc, "2", "1", "N", "I");
        AddDivider(doc);
        AddBanner(doc, longText, 1);
        doc.strips[4].set(StripField::StripColour, "clYellow,clRed");
        addElements(doc, 5);
        for (int row : {1, 4})
            doc.elements[row].set(ElementField::PrintOnBoard, QString());
        doc.elements[3].set(ElementField::BoardId, "C");
        doc.strips[1].set(StripField::Assignments, "3");
        doc.SelStart = 2;
        doc.SelEnd = 3;
        doc.SelElement = 2;
        const BoardStyle style = distinctStyle();
        const QColor dayExt = style.backgroundOf(StripSlot::DayExt);
        const Drawn d = draw(doc, style, QSize(600, 500));
        QCOMPARE(d.result, "  4  5");
        // Below the header every strip, selected or not, is in its own colour.
        QCOMPARE(d.image.pixelColor(inStrip(1, 3)), dayExt);
        QCOMPARE(d.image.pixelColor(inStrip(2, 3)), style.backgroundOf(StripSlot::NightInt));
        QCOMPARE(d.image.pixelColor(inStrip(3, 3)), style.backgroundOf(StripSlot::DayDivider));
        QCOMPARE(d.image.pixelColor(inStrip(4, 3)), QColor(Qt::yellow));
        // The banner's text is in its own text colour.
        const QRect bannerText(G.colW + 3 * G.stripW + 2, 7 * G.rowH + 2, G.stripW - 4, G.headerH - 7 * G.rowH - 4);
        QVERIFY(anyPixel(d.image, bannerText, [](QColor c) { return c.red() > 200 && c.green() < 60; }));
        // The header corner is cream, the element column white, beyond the strips white.
        QCOMPARE(d.image.pixelColor(G.colW - 3, G.headerH - 3), QColor(255, 255, 240));
        QCOMPARE(d.image.pixelColor(G.colW - 30, G.headerH + G.rowH * 2 + 2), QColor(Qt::white));
        QCOMPARE(d.image.pixelColor(G.colW + 4 * G.stripW + 10, 300), QColor(Qt::white));
        // Below the last element row everything is white again.
        QCOMPARE(d.image.pixelColor(inStrip(1, 7)), QColor(Qt::white));

        // The selected strips' headers are red, their header lines white on red.
        const int y = 7 * G.rowH + 5; // in the header, above the description lines
        auto headerAt = [&](int i) { return d.image.pixelColor(G.colW + (i - 1) * G.stripW + G.stripW - 3, y); };
        QCOMPARE(headerAt(1), dayExt);
        QCOMPARE(headerAt(2), QColor(255, 0, 0));
        QCOMPARE(headerAt(3), QColor(255, 0, 0));
        QCOMPARE(headerAt(4), QColor(Qt::yellow));
        const QRect sceneCell(G.colW + G.stripW + 2, G.rowH + 2, G.stripW - 4, G.rowH - 3);
        QVERIFY(hasInk(d.image, sceneCell, QColor(255, 0, 0)));
        QVERIFY(anyPixel(d.image, sceneCell, [](QColor c) { return c == Qt::white; }));
        // The selected element row is red across the element column, the next one is not.
        const int rowTop = G.headerH + G.rowH;
        QCOMPARE(d.image.pixelColor(1, rowTop + 1), QColor(255, 0, 0));
        QCOMPARE(d.image.pixelColor(150, rowTop + G.rowH - 3), QColor(255, 0, 0));
        QCOMPARE(d.image.pixelColor(150, rowTop + G.rowH + 4), QColor(Qt::white));

        // A row line is the destination AND NOT silver: every channel keeps its low six bits.
        auto darkened = [](QColor c) { return QColor(c.red() & 63, c.green() & 63, c.blue() & 63); };
        const int line = G.headerH + 4 * G.rowH;
        QCOMPARE(d.image.pixelColor(G.colW + 20, line), darkened(dayExt));
        QCOMPARE(d.image.pixelColor(60, line), QColor(63, 63, 63));
        QCOMPARE(d.image.pixelColor(G.colW + 2 * G.stripW + 20, line),
                 darkened(style.backgroundOf(StripSlot::DayDivider)));

        // Only scene lines are cut, at 9.5 rows; the cut leaves the strip clear between the
        // header lines and the description. A banner's text runs on.
        const int limitTop = G.headerH - G.margin - BoardRound(9.5 * G.rowH);
        const QRect gap(G.colW + G.margin, 6 * G.rowH + 1, 14, limitTop - 6 * G.rowH - 1);
        QVERIFY(!hasInk(d.image, gap, dayExt));
        QVERIFY(hasInk(d.image, gap.translated(3 * G.stripW, 0), Qt::yellow));
        // The cut is just short of the limit: some ink lies in the last row before it.
        QVERIFY(hasInk(d.image, QRect(G.colW + G.margin, limitTop, 14, G.rowH), dayExt));

        // On the screen every element row is there, the hidden ones in navy, and "C" is in row 3.
        auto markCell = [](int r) {
            return QRect(G.colW + 4, G.headerH + (r - 1) * G.rowH + 2, G.stripW - 8, G.rowH - 4);
        };
        QVERIFY(hasInk(d.image, markCell(3), dayExt));
        QVERIFY(!hasInk(d.image, markCell(2), dayExt));
        QCOMPARE(d.image.pixelColor(inStrip(1, 5)), dayExt);
        const QRect name1(4, G.headerH + 2, 100, G.rowH - 4);
        QVERIFY(anyPixel(d.image, name1, [](QColor c) { return c.blue() > 100 && c.red() < 60; })); // navy
        // Printed, the hidden rows leave no gap: "C" moves up to the second row and the board
        // ends after three rows.
        const Drawn printed = draw(doc, style, QSize(600, 500), {.forPrinting = true});
        QCOMPARE(printed.result, "  4  5");
        QVERIFY(hasInk(printed.image, markCell(2), dayExt));
        QVERIFY(!hasInk(printed.image, markCell(3), dayExt));
        QCOMPARE(printed.image.pixelColor(inStrip(1, 4)), QColor(Qt::white));
        // The selection is the screen's: drawn for printing, it is cleared first.
        QCOMPARE(doc.SelStart, 0);
        QCOMPARE(doc.SelEnd, 0);
        QCOMPARE(doc.SelElement, 0);

        // In black and white, only the dividers are black.
        const Drawn plain = draw(doc, ClassicBoardStyle(), QSize(600, 500), {.inColour = false});
        for (int i = 1; i <= 4; ++i)
            QCOMPARE(plain.image.pixelColor(inStrip(i, 3)), QColor(i == 3 ? Qt::black : Qt::white));
    }
    void returnedText_data()
    {
        Columns<int, int, int, bool, QString>("strips", "elements", "firstStrip", "printing", "result");
        // 800 x 600: the strips start at x = 200 and the element rows at y = 291 (screen)
        // or 288 + 3 (names); 15 strips and 18 rows fit, partly, on the screen.
        Row("empty", 0, 0, 1, false, "  0"), Row("all fit", 10, 10, 1, false, " 10 10"),
            Row("screen, cut", 30, 40, 1, false, " 15 18"), Row("screen, scrolled", 30, 40, 5, false, " 19 18"),
            Row("printing, whole only", 30, 40, 1, true, " 14 17"), Row("past the end", 30, 40, 25, false, " 30 18");
    }
    void returnedText()
    {
        auto [strips, elements, firstStrip, printing] =
            Fetch<int, int, int, bool>("strips", "elements", "firstStrip", "printing");
        ScheduleDocument doc;
        for (int i = 1; i <= strips; ++i)
            AddScene(doc, QString::number(i), "1");
        addElements(doc, elements);
        const Drawn d = draw(doc, BoardStyle(), QSize(800, 600), {.firstStrip = firstStrip, .forPrinting = printing});
        QTEST(d.result, "result");
        // The first vertical line, the column's edge, is black down to the header's bottom.
        QCOMPARE(d.image.pixelColor(G.colW, 100), QColor(Qt::black));
    }
    void nothingPastTheClip()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 30; ++i)
            AddScene(doc, QString::number(i), "1", "D", "E");
        addElements(doc, 40);
        for (int i = 1; i <= 30; ++i)
            doc.strips[i].set(StripField::Assignments, "1,2,3,20,21,22,23");
        const QRect clip(0, 0, 500, 400);
        const Drawn d = draw(doc, ClassicBoardStyle(), QSize(800, 600), {}, clip);
        const QImage &image = d.image;
        QCOMPARE(d.result, "  8  7"); // strips at x 200 .. 480, rows from y 291 while below 400
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (!clip.contains(x, y) && image.pixelColor(x, y) != QColor(Qt::magenta))
                    QFAIL(qPrintable(QStringLiteral("drawn outside the clip at %1,%2").arg(x).arg(y)));
        QVERIFY(image.pixelColor(499, 399) != QColor(Qt::magenta));
    }
    void sameOnEveryResolutionAndWithCachedTexts()
    {
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, ExamplePath()));
        // Fonts follow the device: an image that claims 300 dots per inch gets the same
        // board as one of 96, and one whose axes differ gets taller text.
        auto render = [&](int dpiX, int dpiY) {
            QImage image(900, 700, QImage::Format_RGB32);
            image.setDotsPerMeterX(qRound(dpiX / 0.0254));
            image.setDotsPerMeterY(qRound(dpiY / 0.0254));
            QPainter p(&image);
            DrawBoard(doc, ClassicBoardStyle(), {}, p);
            return image;
        };
        const QImage screen = render(96, 96);
        QCOMPARE(render(300, 300), screen);
        QVERIFY(render(300, 600) != screen);

        doc.SelStart = 3;
        doc.SelEnd = 4;
        doc.SelElement = 2;
        const BoardStyle style = ClassicBoardStyle();
        for (double scale : {0.6, 1.0, 1.4}) {
            BoardTextCache texts;
            const Drawn plain = draw(doc, style, QSize(1200, 800), {.scale = scale});
            const Drawn first = draw(doc, style, QSize(1200, 800), {.scale = scale, .texts = &texts});
            const Drawn again = draw(doc, style, QSize(1200, 800), {.scale = scale, .texts = &texts});
            QCOMPARE(first.result, plain.result);
            QCOMPARE(again.image, first.image);
            // Laid-out text may sit a fraction of a pixel apart from text drawn directly;
            // the board itself must not differ.
            int differing = 0;
            for (int y = 0; y < plain.image.height(); ++y)
                for (int x = 0; x < plain.image.width(); ++x)
                    differing += plain.image.pixel(x, y) != first.image.pixel(x, y);
            QVERIFY2(differing < plain.image.width() * plain.image.height() / 200,
                     qPrintable(QString::number(differing)));
        }
    }
    void displayBuffer()
    {
        ScheduleDocument doc;
        AddScene(doc, "1", "1", "N", "E");
        addElements(doc, 2);
        BoardBuffer buffer;
        QVERIFY(buffer.SetBufferSize(400, 350).ok());
        const BoardStyle style = ClassicBoardStyle();
        const BoardDrawResult drawn = buffer.paint(doc, style, 1, 1, 1.0, nullptr);
        QCOMPARE(drawn.lastDrawnText(), "  1  2");
        QCOMPARE(drawn.headerHeight, 288);
        QCOMPARE(buffer.image().pixelColor(inStrip(1, 2)), style.backgroundOf(StripSlot::NightExt));
        // A buffer too large to allocate keeps the old one and says so.
        const Result huge = buffer.SetBufferSize(1 << 20, 1 << 20);
        QVERIFY(!huge.ok());
        QCOMPARE(huge.message(),
                 "Error with Torvanbridge display buffer. Try saving your work and re-starting the computer.");
        QCOMPARE(buffer.image().size(), QSize(400, 350));
    }
};

TB_TEST_MAIN(TestDrawBoard)
#include "tst_drawboard.moc"
