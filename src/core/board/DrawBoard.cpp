#include "board/DrawBoard.h"

#include "document/AssignmentList.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/StripWords.h"

#include <QFontMetrics>
#include <QHash>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QStaticText>
#include <QVarLengthArray>

namespace tb {

namespace {

const QColor Silver(192, 192, 192);
const QColor Cream(255, 255, 240);
const QColor SelectionRed(255, 0, 0);
const QColor Navy(0, 0, 128);

QColor colourFromName(const QString &name, const QColor &fallback)
{
    const QColor colour = legacy::StringToColor(name);
    return colour.isValid() ? colour : fallback;
}

} // namespace

// Texts of one font as earlier drawings laid them out: width and glyph layout, and
// the shortened form of description lines.
struct FontTexts
{
    struct Entry
    {
        int width = 0;
        QStaticText text;
    };
    QHash<QString, Entry> entries;
    QHash<QString, QString> shortened;
    int shortenLimit = -1;
};

BoardTextCache::BoardTextCache() = default;
BoardTextCache::~BoardTextCache() = default;

FontTexts &BoardTextCache::forFont(const QFont &font, int dpi, bool rotated)
{
    // Fonts are told apart by their full description and the device resolution.
    const QString key = font.toString() + (rotated ? QStringLiteral("@r") : QStringLiteral("@")) + QString::number(dpi);
    auto it = m_fonts.find(key);
    if (it == m_fonts.end()) {
        if (m_fonts.size() > 64) // zooming and printing make a few dozen at most
            m_fonts.clear();
        it = m_fonts.insert(key, std::make_shared<FontTexts>());
    }
    return **it;
}

QString BoardDrawResult::lastDrawnText() const
{
    return (lastStrip ? legacy::Pad3(*lastStrip) : QString()) + legacy::Pad3(lastElement);
}

namespace {

// Bounds the memory of one font's texts; a board has far fewer different texts.
constexpr qsizetype MaxTextsPerFont = 20000;

// The classic canvas calls the board was laid out with, on a QPainter: a rectangle
// from (x1, y1) up to but not including (x2, y2), text placed by the top-left corner
// of its cell and drawn on an opaque background, lines that leave out their end point.
class Canvas
{
public:
    Canvas(QPainter &p, BoardTextCache *cache)
        : m_p(p)
        , m_cache(cache)
        , m_dpi(p.device()->logicalDpiY())
    {}

    QPainter &painter() { return m_p; }

    void fill(int x1, int y1, int x2, int y2, const QColor &colour)
    {
        if (x2 > x1 && y2 > y1)
            m_p.fillRect(QRect(x1, y1, x2 - x1, y2 - y1), colour);
    }
    // A filled rectangle with a one-pixel outline inside its bounds.
    void rectangle(int x1, int y1, int x2, int y2, const QColor &pen, const QColor &brush)
    {
        if (x2 <= x1 || y2 <= y1)
            return;
        fill(x1, y1, x2, y2, brush);
        fill(x1, y1, x2, y1 + 1, pen);
        fill(x1, y2 - 1, x2, y2, pen);
        fill(x1, y1, x1 + 1, y2, pen);
        fill(x2 - 1, y1, x2, y2, pen);
    }
    void hline(int x1, int x2, int y, const QColor &pen) { fill(x1, y, x2, y + 1, pen); }
    void vline(int x, int y1, int y2, const QColor &pen) { fill(x, y1, x + 1, y2, pen); }

    // The fonts of one drawing are a handful of objects used over and over: their
    // metrics and texts are looked up once per object.
    void setFont(const QFont &font, bool rotated = false)
    {
        m_p.setFont(font);
        const std::pair<const QFont *, bool> key(&font, rotated);
        auto it = m_fonts.find(key);
        if (it == m_fonts.end()) {
            FontUse use{QFontMetrics(font, m_p.device()), QFontMetricsF(font, m_p.device()).ascent(),
                        m_cache ? &m_cache->forFont(font, m_dpi, rotated) : nullptr};
            it = m_fonts.insert(key, use);
        }
        m_metrics = it->metrics;
        m_ascent = it->ascent;
        m_texts = it->texts;
    }
    const QFontMetrics &metrics() const { return m_metrics; }
    int width(const QString &text) { return m_texts ? entry(text).width : m_metrics.horizontalAdvance(text); }

    // Draws a text whose cell's top-left corner is at (x, y) in the painter's current
    // coordinates (turned ones included).
    void drawAt(int x, int y, const QString &text, const QColor &fore)
    {
        m_p.setPen(fore);
        if (m_texts)
            m_p.drawStaticText(QPointF(x, y + m_metrics.ascent() - m_ascent), entry(text).text);
        else
            m_p.drawText(x, y + m_metrics.ascent(), text);
    }

    void textOut(int x, int y, const QString &text, const QColor &fore, const QColor &back)
    {
        if (text.isEmpty())
            return;
        m_p.fillRect(QRect(x, y, width(text), m_metrics.height()), back);
        drawAt(x, y, text, fore);
    }
    // Text on a part of a strip column already painted in one colour (the interior
    // `under`, in `underColour`): its opaque background is painted only where it would
    // change something, which on a board is almost never.
    void textOver(int x, int y, const QString &text, const QColor &fore, const QColor &back, const QRect &under,
                  const QColor &underColour)
    {
        if (text.isEmpty())
            return;
        const QRect cell(x, y, width(text), m_metrics.height());
        if (back != underColour || !under.contains(cell))
            m_p.fillRect(cell, back);
        drawAt(x, y, text, fore);
    }
    // Text clipped to a rectangle; the background is painted only inside it.
    void textRect(const QRect &clip, int x, int y, const QString &text, const QColor &fore, const QColor &back)
    {
        if (text.isEmpty() || clip.isEmpty())
            return;
        const int w = width(text);
        const QRect cell = QRect(x, y, w, m_metrics.height()) & clip;
        m_p.fillRect(cell, back);
        if (cell.width() >= w && cell.height() >= m_metrics.height()) {
            drawAt(x, y, text, fore);
            return;
        }
        m_p.save();
        m_p.setClipRect(clip, Qt::IntersectClip);
        drawAt(x, y, text, fore);
        m_p.restore();
    }

    // Shortens a text from its end, a character at a time, until it is no wider than
    // the limit. Widths grow with every character added, so the longest prefix that
    // fits is found by halving instead of by trying each length in turn.
    QString shortened(const QString &text, int limit)
    {
        if (m_texts) {
            if (m_texts->shortenLimit != limit) {
                m_texts->shortened.clear();
                m_texts->shortenLimit = limit;
            }
            auto it = m_texts->shortened.constFind(text);
            if (it != m_texts->shortened.cend())
                return *it;
            if (m_texts->shortened.size() > MaxTextsPerFont)
                m_texts->shortened.clear();
            const QString result = shorten(text, limit);
            m_texts->shortened.insert(text, result);
            return result;
        }
        return shorten(text, limit);
    }

private:
    const FontTexts::Entry &entry(const QString &text)
    {
        auto it = m_texts->entries.constFind(text);
        if (it != m_texts->entries.cend())
            return *it;
        if (m_texts->entries.size() > MaxTextsPerFont)
            m_texts->entries.clear();
        FontTexts::Entry e;
        e.width = m_metrics.horizontalAdvance(text);
        e.text = QStaticText(text);
        e.text.setTextFormat(Qt::PlainText);
        e.text.prepare(QTransform(), m_p.font());
        return *m_texts->entries.insert(text, e);
    }
    QString shorten(const QString &text, int limit) const
    {
        if (m_metrics.horizontalAdvance(text) <= limit)
            return text;
        qsizetype fits = 0;
        qsizetype tooWide = text.size();
        while (tooWide - fits > 1) {
            const qsizetype mid = (fits + tooWide) / 2;
            if (m_metrics.horizontalAdvance(text.left(mid)) <= limit)
                fits = mid;
            else
                tooWide = mid;
        }
        return text.left(fits);
    }

    struct FontUse
    {
        QFontMetrics metrics;
        qreal ascent;
        FontTexts *texts;
    };

    QPainter &m_p;
    BoardTextCache *m_cache;
    int m_dpi;
    QHash<std::pair<const QFont *, bool>, FontUse> m_fonts;
    FontTexts *m_texts = nullptr;
    QFontMetrics m_metrics{QFont()};
    qreal m_ascent = 0; // where a laid-out text's baseline lies below its top
};

// The inside of a rectangle drawn from (x1, y1) to (x2, y2) with a one-pixel outline.
QRect interiorOf(int x1, int y1, int x2, int y2)
{
    return QRect(x1 + 1, y1 + 1, x2 - x1 - 2, y2 - y1 - 2);
}

// The drawing area: the painter's clip rectangle, or the whole device.
QRect canvasExtent(const QPainter &p)
{
    if (p.hasClipping())
        return p.clipBoundingRect().toAlignedRect();
    const QPaintDevice *device = p.device();
    const QRect whole(0, 0, device->width(), device->height());
    return p.worldTransform().inverted().mapRect(whole);
}

// The assignment list of a strip as numbers. The board cuts the list at commas and
// passes over items that are not numbers: they match nothing and raise no message.
QVarLengthArray<int, 32> assignmentNumbers(const StripRecord &strip)
{
    return ReadAssignmentList(strip[StripField::Assignments], UnreadableItem::Skipped, AssignmentItems::AtCommas)
        .numbers;
}

} // namespace

StripSlot StripSlotOf(const StripRecord &strip)
{
    const QString &kind = strip.kind();
    if (kind == StripKinds::DayDivider)
        return StripSlot::DayDivider;
    if (kind == StripKinds::AutoRestDay)
        return StripSlot::AutoRestDay;
    if (kind == StripKinds::Banner)
        return StripSlot::Banner;
    const QString &dn = strip[StripField::DayNight];
    const QString &ie = strip[StripField::IntExt];
    const bool day = dn == QLatin1String("D") || dn == QLatin1String("DWN");
    const bool night = dn == QLatin1String("N") || dn == QLatin1String("DSK");
    if (!day && !night)
        return StripSlot::Unknown;
    if (ie == QLatin1String("I"))
        return day ? StripSlot::DayInt : StripSlot::NightInt;
    if (ie == QLatin1String("E"))
        return day ? StripSlot::DayExt : StripSlot::NightExt;
    if (ie == QLatin1String("I/E"))
        return day ? StripSlot::DayIntExt : StripSlot::NightIntExt;
    return StripSlot::Unknown;
}

QColor StripColour(const StripRecord &strip, const BoardStyle &style)
{
    if (strip.isBanner()) {
        const QString &pair = strip[StripField::StripColour];
        const qsizetype comma = pair.indexOf(u',');
        const QColor &fallback = style.backgroundOf(StripSlot::Banner);
        return comma < 0 ? fallback : colourFromName(pair.left(comma), fallback);
    }
    return style.backgroundOf(StripSlotOf(strip));
}

QColor StripTextColour(const StripRecord &strip, const BoardStyle &style)
{
    if (strip.isBanner()) {
        const QString &pair = strip[StripField::StripColour];
        const qsizetype comma = pair.indexOf(u',');
        if (comma < 0)
            return style.backgroundOf(StripSlot::Banner); // kept: text in its own background colour
        return colourFromName(pair.mid(comma + 1, 20), style.textOf(StripSlot::Banner));
    }
    return style.textOf(StripSlotOf(strip));
}

bool UsesElement(const StripRecord &strip, int element)
{
    return assignmentNumbers(strip).contains(element);
}

QString DescriptionLine(const StripRecord &strip, int code)
{
    switch (code) {
    case DescLineCodes::Location:
        return strip[StripField::Location].toUpper();
    case DescLineCodes::SceneNumbers:
        return QStringLiteral("Scene ") + strip[StripField::SceneNumber];
    default:
        break;
    }
    if (code >= 1 && code <= StripFieldCount)
        return strip.at(code - 1);
    return {};
}

QString FirstDescriptionText(const StripRecord &strip, const BoardStyle &style)
{
    const QString &kind = strip.kind();
    if (kind == StripKinds::Scene)
        return DescriptionLine(strip, style.DescLine1);
    if (kind == StripKinds::DayDivider) {
        QString text =
            style.ShowShootingDays
                ? QStringLiteral("END SHOOT DAY ") + strip[StripField::ShootDayNumber] + QStringLiteral("    ")
                : QStringLiteral("END DAY ") + strip[StripField::DayNumber] + QStringLiteral("    ");
        const double pages = PageLengthOf(strip);
        if (pages > 0)
            text += QStringLiteral("(") + FormatPageLength(pages) + QStringLiteral(" pages)");
        return text;
    }
    if (kind == StripKinds::AutoRestDay)
        return style.ShowShootingDays
                   ? QStringLiteral("REST DAY")
                   : QStringLiteral("DAY ") + strip[StripField::DayNumber] + QStringLiteral("  -  REST DAY");
    if (kind == StripKinds::Banner)
        return strip[StripField::Synopsis];
    return QStringLiteral("???");
}

QString SecondDescriptionText(const StripRecord &strip, const BoardStyle &style)
{
    const QString &kind = strip.kind();
    if (kind == StripKinds::Scene)
        return DescriptionLine(strip, style.DescLine2);
    if (kind == StripKinds::DayDivider || kind == StripKinds::AutoRestDay)
        return strip[StripField::SceneNumber]; // the day's date
    if (kind == StripKinds::Banner) {
        const QString &days = strip[StripField::DayCount];
        if (legacy::StrToIntDef(days, 0) >= 1)
            return QStringLiteral("(") + days + QStringLiteral(" day banner)");
        return QStringLiteral("  ");
    }
    return QStringLiteral("Strip type error");
}

QString StripHintText(const StripRecord &strip)
{
    const QString &kind = strip.kind();
    if (kind == StripKinds::Scene) {
        const QString &ie = strip[StripField::IntExt];
        const QString &dn = strip[StripField::DayNight];
        const QString intExt = IntExtWord(ie);
        const QString dayNight = DayNightWord(dn);
        QString setting = intExt.isEmpty() ? QString() : intExt + QStringLiteral(". ");
        setting += strip[StripField::Location].toUpper();
        if (!dayNight.isEmpty())
            setting += QStringLiteral(" - ") + dayNight;
        return QStringLiteral("Scene: ") + strip[StripField::SceneNumber] + u'\r' + setting + u'\r' +
               strip[StripField::Synopsis];
    }
    if (kind == StripKinds::DayDivider)
        return QStringLiteral("END SHOOTING DAY ") + strip[StripField::ShootDayNumber] +
               QStringLiteral("\rEND PRODUCTION DAY ") + strip[StripField::DayNumber] +
               QStringLiteral("\rTotal pages: ") + FormatPageLength(PageLengthOf(strip));
    if (kind == StripKinds::AutoRestDay)
        return QStringLiteral("REST DAY");
    return {};
}

BoardDrawResult DrawBoard(ScheduleDocument &doc, const BoardStyle &style, const BoardDrawOptions &options,
                          QPainter &canvas)
{
    BoardDrawResult result;
    const bool withHeader = options.withHeader;
    const bool withElementColumn = options.withElementColumn;
    const bool forPrinting = options.forPrinting;
    const bool inColour = options.inColour;
    const double scale = options.scale;
    const int left = options.left;
    const int top = options.top;
    // A printed board leaves nothing selected on the screen afterwards.
    if (forPrinting) {
        doc.SelStart = 0;
        doc.SelEnd = 0;
        doc.SelElement = 0;
    }
    const StripTable &strips = doc.strips;
    const ElementTable &elements = doc.elements;
    const int stripCount = strips.count();
    const int elementCount = elements.count();
    const int lastStrip = options.lastStrip == -1 ? stripCount : options.lastStrip;
    const int firstStrip = qMax(options.firstStrip, 1);
    const int firstElement = qMax(options.firstElement, 1);

    const QRect extent = canvasExtent(canvas);
    const int right = extent.x() + extent.width();
    const int bottom = extent.y() + extent.height();

    const BoardGeometry g(scale);
    const int stripW = qMax(g.stripW, 1);
    const int rowH = qMax(g.rowH, 1);
    const int colW = g.colW;
    const int headerH = g.headerH;
    const int m = g.margin;
    result.headerHeight = headerH;

    // Fonts are sized for the device drawn on, so screen, image, PDF and printer keep
    // the same proportions.
    const int dpiX = canvas.device()->logicalDpiX();
    const int dpiY = canvas.device()->logicalDpiY();
    const QFont labelFont = BoardFont(style.fontName, BoardFontHeight(HeaderLabelFontHeight, scale, dpiX, dpiY));
    const QFont labelBold = BoardFont(style.fontName, BoardFontHeight(HeaderLabelFontHeight, scale, dpiX, dpiY), true);
    const QFont stripFont = BoardFont(style.fontName, BoardFontHeight(StripFontHeight, scale, dpiX, dpiY));
    const QFont stripBold = BoardFont(style.fontName, BoardFontHeight(StripFontHeight, scale, dpiX, dpiY), true);
    const QFont markFont = BoardFont(style.fontName, BoardFontHeight(ElementMarkFontHeight, scale, dpiX, dpiY), true);
    QFont underlined = stripFont;
    underlined.setUnderline(true);

    canvas.save();
    canvas.setRenderHint(QPainter::Antialiasing, false);
    canvas.setRenderHint(QPainter::TextAntialiasing, true);
    canvas.setCompositionMode(QPainter::CompositionMode_SourceOver);
    canvas.setBrush(Qt::NoBrush);
    Canvas c(canvas, options.texts);

    // The whole extent white. The strip columns below cover their part of it from the
    // board's top to the bottom, so only the rest is filled here: the same picture with
    // a third of the memory traffic.
    const int stripLimit = right - (forPrinting ? stripW : 0);
    const int firstX = withElementColumn ? left + colW : left + 1;
    int columnsEnd = firstX;
    if (stripCount >= 1) {
        for (int i = firstStrip; columnsEnd < stripLimit && i <= lastStrip && i <= stripCount; ++i)
            columnsEnd += stripW;
    }
    if (columnsEnd > firstX) {
        c.fill(extent.x(), extent.y(), firstX, bottom, Qt::white);
        c.fill(columnsEnd, extent.y(), right, bottom, Qt::white);
        c.fill(firstX, extent.y(), columnsEnd, top, Qt::white);
    } else {
        c.fill(extent.x(), extent.y(), right, bottom, Qt::white);
    }

    // Header corner: the labels of the six header lines, then the production details.
    if (withHeader && withElementColumn) {
        c.fill(left, top, left + colW, top + headerH, Cream);
        const int cm = g.cornerMargin;
        const QRect column(left + cm, top, colW - 2 * cm, headerH);
        c.setFont(labelFont);
        int y = top + BoardRound(2 * scale);
        for (const char *label : {"Breakdown sheet #", "Scene", "Day / Night", "Int / Ext", "Page #", "Pages"}) {
            c.textOut(left + cm, y, QString::fromLatin1(label), Qt::black, Cream);
            y += rowH;
        }
        y += rowH + rowH / 2;
        const ProductionValues &v = doc.values;
        if (!v.PictureTitle.isEmpty()) {
            c.setFont(labelBold);
            c.textRect(column, left + cm, y, u'"' + v.PictureTitle + u'"', Qt::black, Cream);
            c.setFont(labelFont);
            y += rowH;
        }
        y += rowH / 2;
        const std::pair<const char *, const QString *> details[] = {
            {"Picture ref: ", &v.Reference},  {"Producer: ", &v.Producer}, {"Director: ", &v.Director},
            {"PM: ", &v.ProductionManager},   {"1st AD: ", &v.FirstAD},    {"Script: ", &v.ScriptTitle},
            {"Schedule by: ", &v.PreparedBy},
        };
        for (const auto &[caption, value] : details) {
            if (value->isEmpty())
                continue;
            c.textRect(column, left + cm, y, QString::fromLatin1(caption) + *value, Qt::black, Cream);
            y += rowH;
            c.hline(left + cm, left + colW - 2 * cm, y - cm, Silver);
        }
    }

    // The element rows the strips are marked in: their numbers and where each starts.
    const int elementTop = top + (withHeader ? headerH : 0);
    const int rowLimit = bottom - (forPrinting ? rowH : 0);
    struct MarkRow
    {
        int row;
        int y;
    };
    QVarLengthArray<MarkRow, 128> markRows;
    int markRowsEnd = withHeader ? elementTop + BoardRound(1 * scale) : top;
    int lastMarkRow = firstElement - 1;
    for (int row = firstElement; markRowsEnd < rowLimit && row <= elementCount; ++row) {
        lastMarkRow = row;
        if (forPrinting && elements[row][ElementField::PrintOnBoard].isEmpty())
            continue; // left out without using a row
        markRows.append({row, markRowsEnd});
        markRowsEnd += rowH;
    }

    int endX = firstX;   // the right edge of the last column drawn
    int stripsDrawn = 0; // columns drawn

    auto selected = [&](int i) { return i >= doc.SelStart && i <= doc.SelEnd; };
    auto colours = [&](const StripRecord &strip, QColor *back, QColor *fore) {
        if (inColour) {
            *back = StripColour(strip, style);
            *fore = StripTextColour(strip, style);
        } else if (strip.isDayDivider()) {
            *back = Qt::black;
            *fore = Qt::white;
        } else {
            *back = Qt::white;
            *fore = Qt::black;
        }
    };

    // Strip columns: the coloured column, the header lines and the element marks.
    if (stripCount >= 1) {
        int x = firstX;
        int i = firstStrip;
        for (; x < stripLimit && i <= lastStrip && i <= stripCount; ++i, x += stripW) {
            const StripRecord &strip = strips[i];
            QColor back, fore;
            colours(strip, &back, &fore);
            c.rectangle(x, top, x + stripW, bottom, Silver, back);
            QColor headBack = back;
            QColor headFore = fore;
            const QRect interior = interiorOf(x, top, x + stripW, bottom);
            QRect headInterior = interior;
            if (selected(i)) {
                headBack = SelectionRed;
                headFore = Qt::white;
                c.rectangle(x, 1, x + stripW, headerH, Silver, SelectionRed);
                headInterior = interiorOf(x, 1, x + stripW, headerH);
            }
            if (withHeader) {
                if (strip.isScene()) {
                    const QString lines[6] = {
                        strip[StripField::StripId],    strip[StripField::SceneNumber],
                        strip[StripField::DayNight],   strip[StripField::IntExt],
                        strip[StripField::ScriptPage], FormatPageLength(PageLengthOf(strip)),
                    };
                    c.setFont(stripFont);
                    int y = top + m;
                    for (int k = 0; k < 6; ++k, y += rowH) {
                        int w = c.width(lines[k]);
                        // A scene number wider than its strip is underlined: it runs
                        // into the neighbours, and the line says so.
                        const bool overflows = k == 1 && w > stripW;
                        if (overflows) {
                            c.setFont(underlined);
                            w = c.width(lines[k]);
                        }
                        c.textOver(x + stripW / 2 - w / 2, y, lines[k], headFore, headBack, headInterior, headBack);
                        if (overflows)
                            c.setFont(stripFont);
                    }
                    // A scene marked shot at the end of its day: a small corner turned
                    // down at the top right of its header.
                    if (!strip[StripField::Reserved12].isEmpty()) {
                        const int t = std::max(3, stripW / 3);
                        const int xr = x + stripW - 1;
                        const int yt = top + 1;
                        const QPoint corner[3] = {QPoint(xr - t, yt), QPoint(xr, yt), QPoint(xr, yt + t)};
                        canvas.save();
                        canvas.setPen(Qt::NoPen);
                        canvas.setBrush(headFore);
                        canvas.drawPolygon(corner, 3);
                        canvas.restore();
                    }
                } else if (!strip.isDayDivider() && !strip.isAutoRestDay() && !strip.isBanner()) {
                    c.setFont(stripFont);
                    c.textOut(x + m, m + rowH, QStringLiteral("??"), headFore, headBack);
                }
            }
            if (strip.isScene() && !markRows.isEmpty()) {
                const auto used = assignmentNumbers(strip);
                if (!used.isEmpty()) {
                    c.setFont(markFont);
                    for (const MarkRow &mark : markRows) {
                        if (!used.contains(mark.row))
                            continue;
                        const QString &id = elements[mark.row][ElementField::BoardId];
                        c.textOver(x + stripW / 2 - c.width(id) / 2, mark.y, id, fore, back, interior, back);
                    }
                }
            }
        }
        endX = x;
        stripsDrawn = i - firstStrip;
        result.lastStrip = i - 1;
        if (forPrinting) {
            result.printedRight = x;
            result.printedBottom = markRowsEnd;
        }
    }

    // The rotated description lines, running upward from the bottom of the header.
    if (withHeader && stripsDrawn > 0) {
        c.setFont(stripFont, true);
        const int cellH = c.metrics().height();
        const int limit = BoardRound(9.5 * rowH);
        const int baseY = top + headerH - m;
        struct Line
        {
            int x;
            QString text;
            QColor fore;
        };
        QVarLengthArray<Line, 128> lines;
        int x = firstX;
        for (int i = firstStrip; i < firstStrip + stripsDrawn; ++i, x += stripW) {
            const StripRecord &strip = strips[i];
            QColor back, fore;
            colours(strip, &back, &fore);
            // What the header of this column was painted with above.
            QColor underColour = back;
            QRect under = interiorOf(x, top, x + stripW, bottom);
            if (selected(i)) {
                underColour = SelectionRed;
                under = interiorOf(x, 1, x + stripW, headerH);
                if (inColour) {
                    back = SelectionRed;
                    fore = Qt::white;
                }
            }
            QString first = FirstDescriptionText(strip, style);
            QString second = SecondDescriptionText(strip, style);
            // Only scene lines are cut to the header; the cut is per character, with
            // no ellipsis.
            if (strip.isScene()) {
                first = c.shortened(first, limit);
                second = c.shortened(second, limit);
            }
            // Opaque text: the background of each line first, upright, where it changes
            // anything.
            for (const auto &[lineX, text] : {std::pair<int, const QString &>{x + m, first}, {x + 7 * m, second}}) {
                if (text.isEmpty())
                    continue;
                const QRect cell(lineX, baseY - c.width(text), cellH, c.width(text));
                if (back != underColour || !under.contains(cell))
                    canvas.fillRect(cell, back);
            }
            lines.append({x + m, first, fore});
            lines.append({x + 7 * m, second, fore});
        }
        // Then the text itself, turned a quarter to the left: a point (X, Y) of the
        // board is (-Y, X) in the turned coordinates.
        canvas.save();
        canvas.rotate(-90);
        for (const Line &line : lines) {
            if (!line.text.isEmpty())
                c.drawAt(-baseY, line.x, line.text, line.fore);
        }
        canvas.restore();
    }

    // The element name column.
    int lastElement = lastMarkRow;
    int rowsDrawn = int(markRows.size());
    if (elementCount >= 1 && withElementColumn) {
        int y = top + m + (withHeader ? headerH : 0);
        int row = firstElement;
        rowsDrawn = 0;
        for (; y < rowLimit && row <= elementCount; ++row) {
            const ElementRecord &element = elements[row];
            const bool flagged = !element[ElementField::PrintOnBoard].isEmpty();
            QColor back = Qt::white;
            QColor fore = flagged ? QColor(Qt::black) : Navy;
            if (!forPrinting && row == doc.SelElement) {
                c.fill(left, y - m, left + colW, y - m + rowH, SelectionRed);
                back = SelectionRed;
                fore = Qt::white;
                c.setFont(stripBold);
            } else {
                c.setFont(stripFont);
            }
            if (forPrinting && !flagged)
                continue;
            const QString &id = element[ElementField::BoardId];
            const int idX = left + colW - m - c.width(id);
            c.textOut(idX, y, id, fore, back);
            const QRect nameClip(QPoint(left + m, y), QPoint(idX - 2 * m - 1, y + rowH - m - 1));
            c.textRect(nameClip, left + m, y, element[ElementField::Description], fore, back);
            y += rowH;
            ++rowsDrawn;
        }
        lastElement = row - 1;
    }
    result.lastElement = lastElement;

    // The grid. Lines darken what lies beneath them (destination AND NOT silver), so
    // they show on every strip colour; devices without raster operations get a dark
    // translucent line that does much the same.
    const int lastRowBottom = elementTop + rowsDrawn * rowH;
    const int gridRight = stripsDrawn > 0 ? endX : (withElementColumn ? left + colW : left + 1);
    QColor gridPen = Silver;
    const bool rasterOps = canvas.paintEngine() && canvas.paintEngine()->hasFeature(QPaintEngine::RasterOpModes);
    if (rasterOps)
        canvas.setCompositionMode(QPainter::RasterOp_NotSourceAndDestination);
    else
        gridPen = QColor(0, 0, 0, 192);
    if (withHeader) {
        for (int y = top; y < top + 7 * rowH; y += rowH)
            c.hline(left, gridRight, y, gridPen);
    }
    for (int y = elementTop; y <= lastRowBottom; y += rowH)
        c.hline(left, gridRight, y, gridPen);
    canvas.setCompositionMode(QPainter::CompositionMode_SourceOver);

    if (withElementColumn) {
        bool firstLine = true;
        for (int x = left + colW; x <= gridRight; x += stripW) {
            c.vline(x, top, lastRowBottom + 1, firstLine ? QColor(Qt::black) : Silver);
            firstLine = false;
        }
    }

    // Below the last row: white, so nothing of an earlier drawing remains.
    if (forPrinting && elementCount == 0)
        result.printedBottom = headerH;
    c.fill(left, lastRowBottom + 1, right, bottom, Qt::white);

    canvas.restore();
    return result;
}

} // namespace tb
