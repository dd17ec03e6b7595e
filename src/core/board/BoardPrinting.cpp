#include "board/BoardPrinting.h"

#include "board/DrawBoard.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"

#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>

namespace tb {

Result StorePerforatedStock(Settings &settings, double marginMm, double tenStripsMm)
{
    settings.perfMargin = marginMm;
    settings.perfWidth = tenStripsMm / 10.0;
    return settings.WritePerforatedStock();
}

QString BoardPrintJobTitle(const ScheduleDocument &doc)
{
    const QString name = doc.FileName.isEmpty() ? QStringLiteral("Untitled") : QFileInfo(doc.FileName).fileName();
    return QStringLiteral("Torvanbridge - ") + name;
}

QString BoardRangeEntry(const ScheduleDocument &doc, int strip)
{
    const StripRecord &row = doc.strips[strip];
    const QString &location = row[StripField::Location];
    if (row.isScene())
        return row[StripField::SceneNumber] + QStringLiteral("  ") + location;
    if (row.isDayDivider())
        return QStringLiteral("Divider  ") + location;
    if (row.isAutoRestDay())
        return QStringLiteral("Rest  ") + location;
    return QStringLiteral("Banner  ") + location;
}

BoardPrintResult PrintBoard(ScheduleDocument &doc, const BoardStyle &style, const BoardPrintOptions &options,
                            QPagedPaintDevice &device)
{
    BoardPrintResult result;
    result.overallScale = options.overallScale;
    const int dpiX = device.logicalDpiX();
    const int dpiY = device.logicalDpiY();
    // The unprintable edges of the sheet: the device draws from the printable area's
    // corner.
    const QMargins offsets = device.pageLayout().marginsPixels(dpiX);

    // A strip prints exactly one perforated strip wide at the overall scale of 100 %.
    const double k = dpiX / 25.4 * options.perfWidth / qMax(1, options.screenStripWidth);
    const int eightMillimetres = qRound(dpiY / 25.4 * 8);
    int x0 = 0;
    int y0 = 0;
    if (options.perforated) {
        x0 = qRound(options.perfMargin * dpiX / 25.4) - offsets.left();
        y0 = eightMillimetres - offsets.top();
        // Perforated stock takes strips at their true pitch: the overall scale goes back
        // to 100 % and stays there for the rest of the run.
        result.overallScale = 1.0;
    } else if (options.showDate || options.showPageNumber) {
        y0 = eightMillimetres - offsets.top();
    }
    // A margin inside the printer's unprintable edge starts one strip further right.
    if (x0 < 0)
        x0 += qRound(options.screenStripWidth * k);
    y0 = qMax(0, y0);
    result.left = x0;
    result.top = y0;
    result.scale = k * result.overallScale;

    const int first = qMax(1, options.firstStrip);
    const int last = options.lastStrip < 0 ? doc.strips.count() : qMin(options.lastStrip, doc.strips.count());
    const QString header = legacy::FormatDate(options.printed.date(), QString::fromLatin1(legacy::ShortDatePattern)) +
                           QStringLiteral("   ") + QLocale().toString(options.printed.time(), QLocale::ShortFormat);

    QPainter painter;
    if (!painter.begin(&device)) {
        result.problem = QStringLiteral("The printer could not start the print job.");
        return result;
    }
    QFont headerFont(QStringLiteral("Arial"));
    headerFont.setPointSizeF(9);
    BoardTextCache texts;
    int next = first;
    int page = 0;
    while (next <= last) {
        ++page;
        const bool withHeader = page == 1 || options.headerOnEveryPage;
        BoardDrawOptions draw;
        draw.firstStrip = next;
        draw.firstElement = 1;
        draw.lastStrip = last;
        draw.withHeader = withHeader;
        draw.withElementColumn = withHeader;
        draw.forPrinting = true;
        draw.inColour = !options.blackAndWhite;
        draw.scale = result.scale;
        draw.left = x0;
        draw.top = y0;
        draw.texts = &texts;
        painter.save();
        painter.setClipRect(QRect(0, 0, device.width(), device.height()));
        const BoardDrawResult drawn = DrawBoard(doc, style, draw, painter);
        painter.restore();
        // The plain paper headers go above the board, after it has been drawn (the
        // drawing whitens its whole page first).
        if (!options.perforated) {
            painter.setFont(headerFont);
            painter.setPen(Qt::black);
            const QRect band(0, 0, device.width(), qMax(1, y0));
            if (options.showDate)
                painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter, header);
            if (options.showPageNumber)
                painter.drawText(band, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Page %1").arg(page));
        }
        const int lastDrawn = drawn.lastStrip.value_or(next - 1);
        // A page that holds no strip would be followed by the same page without end;
        // the printing stops instead.
        if (lastDrawn < next) {
            result.problem = QStringLiteral("The page is too small to hold a strip at this scale.");
            break;
        }
        result.pages.append({next, lastDrawn});
        next = lastDrawn + 1;
        // A new page follows every page, the last one included, so the job always ends
        // with a blank sheet; the board has always printed this way and it is kept.
        device.newPage();
    }
    painter.end();
    return result;
}

} // namespace tb
