#include "reports/AlLayout.h"

#include "document/LegacyText.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tb {

namespace {

// The time a report says it was printed. SOURCE_DATE_EPOCH (seconds since 1970, the
// reproducible-builds convention) fixes it, so the same command prints the same pages
// at any hour; the recorded outputs of the command-line tool rely on that.
QDateTime PrintingTime()
{
    bool ok = false;
    const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&ok);
    if (ok)
        return QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC);
    return QDateTime::currentDateTime();
}

QColor toColor(quint32 value)
{
    // The window text colour of the toolkit prints black.
    return legacy::ColorValueToQColor(value);
}

bool paintsBackground(quint32 colour)
{
    // A band keeps the design form's face colour unless its template gives it another:
    // that colour marks the band on the design form and is not printed.
    return colour != clBtnFace && colour != clNone && colour != 0x20000000;
}

int lineHeight(const QFontMetricsF &metrics)
{
    return int(std::ceil(metrics.lineSpacing()));
}

int textWidth(const QList<double> &widths)
{
    double width = 0;
    for (double w : widths)
        width = std::max(width, w);
    return int(std::ceil(width));
}

// Where a line starts in its control's rectangle.
double lineLeft(const QRect &rect, TAlignment alignment, double width)
{
    switch (alignment) {
    case TAlignment::taRightJustify:
        return rect.left() + rect.width() - width;
    case TAlignment::taCenter:
        return rect.left() + (rect.width() - width) / 2.0;
    case TAlignment::taLeftJustify:
        break;
    }
    return rect.left();
}

bool isLabel(const tAlControl *c)
{
    const auto k = c->kind();
    return k == AlComponent::Kind::Label || k == AlComponent::Kind::Field || k == AlComponent::Kind::SysField;
}

QList<TAlField *> fieldsOn(const tAlBand *band)
{
    QList<TAlField *> list;
    if (!band)
        return list;
    for (tAlControl *c : band->controls)
        if (c->kind() == AlComponent::Kind::Field)
            list.append(static_cast<TAlField *>(c));
    return list;
}

class LayoutRun
{
public:
    LayoutRun(TAlReport &report, const LayoutPage &page)
        : m_report(report)
        , m_form(*report.form())
        , m_page(page)
        , m_ppi(m_form.PixelsPerInch)
    {
        // The left margin counts from the sheet's edge, so the printer's offset comes off it.
        m_leftMargin = MillimetresToDots(report.LeftMarginMM, LayoutDpi) - page.offsetLeft;
        m_rightEdge = page.pageWidth - MillimetresToDots(report.RightMarginMM, LayoutDpi);
        const QDateTime now = report.now.isValid() ? report.now : PrintingTime();
        m_dateText = legacy::FormatDate(now.date(), QString::fromLatin1(legacy::ShortDatePattern));
        m_timeText = QLocale().toString(now.time(), QLocale::ShortFormat);
        for (TAlField *field : m_form.fields())
            m_rowCount = std::max(m_rowCount, int(field->values.size()));
    }

    ReportLayout run()
    {
        // 1. Progress box, cancel flag, counters; every field back to its first value.
        if (m_report.progressBox)
            m_report.progressBox->setLabel(QStringLiteral("Initializing..."));
        m_report.cancelled = false;
        for (TAlField *field : m_form.fields())
            field->rewind();
        // 2. Bands by their top edge on the design form; equal tops keep their order.
        QList<tAlBand *> bands = m_form.bands();
        std::stable_sort(bands.begin(), bands.end(),
                         [](const tAlBand *a, const tAlBand *b) { return a->Top < b->Top; });
        // 3. Lists by type, and the detail header that governs each band.
        const tAlBand *previous = nullptr;
        for (tAlBand *band : bands) {
            band->header = band;
            if (band->link)
                band->link->lastValue.clear();
            switch (band->BandType) {
            case tAlBandType::alr_Title:
                m_titles.append(band);
                break;
            case tAlBandType::alr_PageHeader:
                m_pageHeaders.append(band);
                break;
            case tAlBandType::alr_DetailHeader:
                m_detailHeaders.append(band);
                break;
            case tAlBandType::alr_Detail:
            case tAlBandType::alr_NewPage:
                m_details.append(band);
                if (previous && previous->BandType == tAlBandType::alr_DetailHeader)
                    band->header = const_cast<tAlBand *>(previous);
                break;
            case tAlBandType::alr_DetailFooter:
                m_detailFooters.append(band);
                if (previous && previous->BandType == tAlBandType::alr_Detail)
                    band->header = previous->header;
                break;
            case tAlBandType::alr_PageFooter:
                m_pageFooters.append(band);
                break;
            case tAlBandType::alr_ReportFooter:
                m_reportFooters.append(band);
                break;
            case tAlBandType::alr_GroupHeader:
            case tAlBandType::alr_GroupFooter:
                break; // printed through a detail link only
            }
            previous = band;
        }
        // 4. The usable bottom leaves room for the page footers; the position starts
        //    below it so that the first band printed starts the first page.
        int footers = 0;
        for (const tAlBand *band : m_pageFooters)
            if (band->Enabled)
                footers += prepare(*band, -1).rect.height();
        m_usableBottom = m_page.pageHeight - 1 - footers;
        m_curY = m_page.pageHeight + 10;
        m_firstPage = true;

        // 5. Titles, each detail with its headers and footers, report footers, last page end.
        for (const tAlBand *band : m_titles)
            if (band->Enabled && !m_stop)
                drawBand(*band, nullptr);
        for (tAlBand *detail : m_details) {
            if (m_stop)
                break;
            if (!detail->Enabled)
                continue;
            const QList<tAlBand *> headers = bandsOfGroup(m_detailHeaders, detail);
            keepHeadersWithFirstRow(*detail, headers);
            for (const tAlBand *header : headers)
                if (header->Enabled && !m_stop)
                    drawBand(*header, nullptr);
            printBand(*detail);
            if (detail->BandType == tAlBandType::alr_Detail)
                for (const tAlBand *footer : bandsOfGroup(m_detailFooters, detail))
                    if (footer->Enabled && !m_stop)
                        drawBand(*footer, nullptr);
        }
        for (const tAlBand *band : m_reportFooters)
            if (band->Enabled && !m_stop)
                drawBand(*band, nullptr);
        if (!m_stop) {
            if (m_result.pages.isEmpty()) {
                // Ending a page that never started still draws onto the first page.
                m_result.pages.append(LaidOutPage());
                m_pageOpen = true;
            }
            endPage();
        }
        m_result.cancelled = m_stop;
        return m_result;
    }

private:
    int scaleX(int v) const { return ScaleToOutput(v, LayoutDpi, m_ppi); }
    int scaleY(int v) const { return ScaleToOutput(v, LayoutDpi, m_ppi); }

    QList<tAlBand *> bandsOfGroup(const QList<tAlBand *> &list, const tAlBand *detail) const
    {
        QList<tAlBand *> result;
        for (tAlBand *band : list)
            if (band->header == detail->header && band != detail)
                result.append(band);
        return result;
    }

    QString sysText(const TAlSysField &field) const
    {
        switch (field.DataType) {
        case tAlSysDataType::alr_Time:
            return m_timeText;
        case tAlSysDataType::alr_Date:
            return m_dateText;
        case tAlSysDataType::alr_DateTime:
            return m_dateText + u' ' + m_timeText;
        case tAlSysDataType::alr_PageNum:
            // The number of the page the field is drawn on.
            return QString::number(std::max<qsizetype>(1, m_result.pages.size()));
        case tAlSysDataType::alr_Counter:
            // Counted over the whole report.
            return QString::number(m_rowCounter);
        case tAlSysDataType::alr_Count:
            return QString::number(m_rowCount);
        case tAlSysDataType::alr_Formname:
            return field.formName;
        }
        return QString();
    }

    QString textOf(const TAlLabel &label) const
    {
        switch (label.kind()) {
        case AlComponent::Kind::Field:
            return static_cast<const TAlField &>(label).value();
        case AlComponent::Kind::SysField:
            return sysText(static_cast<const TAlSysField &>(label));
        default:
            return label.Caption;
        }
    }

    int bandWidth(const tAlBand &band) const
    {
        int width = scaleX(band.Width);
        if (band.Columns > 1 && band.ColWidthMM > 0)
            width = std::min(width, MillimetresToDots(band.ColWidthMM, LayoutDpi));
        return std::max(0, std::min(width, m_rightEdge - m_leftMargin));
    }

    // The band with its controls placed relative to its own top left corner.
    PlacedBand prepare(const tAlBand &band, int row) const
    {
        PlacedBand placed;
        placed.band = &band;
        placed.row = row;
        if (paintsBackground(band.Color))
            placed.background = band.Color;
        // Alternate row shading: every second row of a detail band in AltColor (0, the
        // default, shades nothing).
        if (row >= 0 && row % 2 == 1 && band.AltColor != 0 && band.AltColor != clNone)
            placed.background = band.AltColor;

        const int designHeight = scaleY(band.Height);
        const int width = bandWidth(band);
        const bool expand = band.ClipMode == tClipMode::cm_Expand;
        int height = designHeight;
        QList<int> anchored; // shapes and images that follow a grown band's bottom

        for (const tAlControl *control : band.controls) {
            if (!control->visible || (m_page.preview && !control->VisibleInPreview))
                continue;
            PlacedControl pc;
            pc.control = control;
            QRect r(scaleX(control->Left), scaleY(control->Top), scaleX(control->Width), scaleY(control->Height));
            if (isLabel(control)) {
                const auto &label = static_cast<const TAlLabel &>(*control);
                const QFontMetricsF &metrics = label.metrics();
                pc.text = textOf(label);
                pc.lines = BreakTextLines(
                    pc.text, [&label](const QString &t) { return label.advance(t); }, label.WordWrap ? r.width() : 0,
                    &pc.widths);
                const int lh = lineHeight(metrics);
                const int textHeight = int(pc.lines.size()) * lh;
                if (label.AutoSize) {
                    if (!label.WordWrap) {
                        const int w = textWidth(pc.widths);
                        if (label.Alignment == TAlignment::taRightJustify)
                            r.setLeft(r.left() + r.width() - w);
                        else if (label.Alignment == TAlignment::taCenter)
                            r.setLeft(r.left() + (r.width() - w) / 2);
                        r.setWidth(w);
                    }
                    r.setHeight(std::max(textHeight, lh));
                }
                if (expand && textHeight > r.height()) {
                    const int gapBelow = std::max(0, designHeight - (r.top() + r.height()));
                    r.setHeight(textHeight);
                    height = std::max(height, r.top() + r.height() + gapBelow);
                }
            } else if (expand && control->Top + control->Height >= band.Height - 1) {
                anchored.append(int(placed.controls.size()));
            }
            pc.rect = r;
            placed.controls.append(pc);
        }
        // In a grown band, a shape or picture reaching the band's bottom keeps to it: one
        // that also starts at the top (a box, a vertical rule) stretches, any other moves.
        for (int index : anchored) {
            PlacedControl &pc = placed.controls[index];
            const int gapBelow = std::max(0, designHeight - (pc.rect.top() + pc.rect.height()));
            if (pc.control->Top <= 1)
                pc.rect.setHeight(height - pc.rect.top() - gapBelow);
            else
                pc.rect.moveTop(height - gapBelow - pc.rect.height());
        }
        placed.rect = QRect(0, 0, width, height);
        // Clipping: to the control (cm_Clip) or the grown control (cm_Expand) within the
        // band; cm_Overwrite draws over whatever follows. A text that fits needs no clip.
        if (band.ClipMode != tClipMode::cm_Overwrite) {
            for (PlacedControl &pc : placed.controls) {
                QRect extent = pc.rect;
                if (isLabel(pc.control)) {
                    const auto &label = static_cast<const TAlLabel &>(*pc.control);
                    const QFontMetricsF &metrics = label.metrics();
                    const int w = textWidth(pc.widths);
                    const int left = int(std::floor(lineLeft(pc.rect, label.Alignment, w)));
                    extent = QRect(left, pc.rect.top(), w, int(pc.lines.size()) * lineHeight(metrics));
                    if (!label.Transparent)
                        extent = extent.united(pc.rect);
                }
                if (extent.isEmpty())
                    continue;
                const QRect clip = pc.rect.intersected(placed.rect);
                if (!clip.contains(extent)) {
                    pc.clipped = true;
                    pc.clip = clip;
                }
            }
        }
        return placed;
    }

    void place(PlacedBand placed, int x, int y)
    {
        placed.rect.translate(x, y);
        for (PlacedControl &pc : placed.controls) {
            pc.rect.translate(x, y);
            pc.clip.translate(x, y);
        }
        m_result.pages.last().bands.append(std::move(placed));
    }

    // Draws the band once per column at the current position and moves below it.
    void placeColumns(const PlacedBand &placed, const tAlBand &band)
    {
        const int columns = std::max(1, band.Columns);
        const int step = MillimetresToDots(band.ColWidthMM, LayoutDpi);
        for (int k = 0; k < columns; ++k)
            place(placed, m_leftMargin + k * step, m_curY);
        m_curY += placed.rect.height();
    }

    void printBand(tAlBand &band)
    {
        if (band.BandType == tAlBandType::alr_NewPage) {
            endPage(); // the next band starts a new page
            return;
        }
        if (band.BandType == tAlBandType::alr_Detail)
            printDetail(band);
        else
            drawBand(band, nullptr);
    }

    bool fits(int height) const { return m_pageOpen && (m_curY + height <= m_usableBottom || m_freshPage); }

    // Any band printed on its own: a new page when it does not fit (a band taller than a
    // whole page is drawn on a fresh page anyway, where it runs over the bottom).
    void drawBand(const tAlBand &band, tAlBand *detail)
    {
        if (m_stop)
            return;
        PlacedBand placed = prepare(band, -1);
        if (!fits(placed.rect.height())) {
            if (detail)
                newPageForDetail(*detail, false);
            else
                newPage();
            if (m_stop)
                return;
            placed = prepare(band, -1);
        }
        placeColumns(placed, band);
        m_freshPage = false;
    }

    void keepHeadersWithFirstRow(const tAlBand &detail, const QList<tAlBand *> &headers)
    {
        if (!m_pageOpen || m_freshPage || headers.isEmpty() || detail.BandType != tAlBandType::alr_Detail)
            return;
        int needed = prepare(detail, 0).rect.height();
        for (const tAlBand *header : headers)
            if (header->Enabled)
                needed += prepare(*header, -1).rect.height();
        if (detail.link && detail.link->DataSource && detail.link->GroupHeader)
            needed += prepare(*detail.link->GroupHeader, -1).rect.height();
        if (m_curY + needed > m_usableBottom)
            newPage();
    }

    void printDetail(tAlBand &detail)
    {
        TAlDetailLink *link = detail.link && detail.link->DataSource ? detail.link : nullptr;
        const QList<TAlField *> fields = fieldsOn(&detail);
        // Fields on the link's group header and footer belong to the detail's rows: they
        // show the row that opens or closes the group.
        QList<TAlField *> rowFields = fields;
        if (link) {
            rowFields += fieldsOn(link->GroupHeader);
            rowFields += fieldsOn(link->GroupFooter);
        }
        const int columns = std::max(1, detail.Columns);
        const int step = MillimetresToDots(detail.ColWidthMM, LayoutDpi);
        int column = 0;
        int lineTop = m_curY;
        int lineHeight = 0;
        auto endLine = [&] {
            if (column != 0) {
                m_curY = lineTop + lineHeight;
                column = 0;
            }
        };
        for (int row = 0;; ++row) {
            if (m_stop)
                break;
            ++m_rowCounter;
            PlacedBand placed = prepare(detail, row);
            const bool groupStarts = link && link->DataSource->value() != link->lastValue;
            if (groupStarts)
                endLine();
            if (column == 0) {
                int needed = placed.rect.height();
                if (groupStarts && link->GroupHeader)
                    needed += prepare(*link->GroupHeader, -1).rect.height();
                // The last row of a group keeps its group footer on its page.
                const QString current = groupStarts ? link->DataSource->value() : link ? link->lastValue : QString();
                if (link && link->GroupFooter && link->GroupFooter->Enabled &&
                    link->DataSource->valueAt(link->DataSource->row + 1) != current)
                    needed += prepare(*link->GroupFooter, -1).rect.height();
                if (!fits(needed)) {
                    newPageForDetail(detail, groupStarts);
                    if (m_stop)
                        break;
                    placed = prepare(detail, row);
                }
            }
            if (groupStarts) {
                link->lastValue = link->DataSource->value();
                if (link->GroupHeader && link->GroupHeader->Enabled)
                    drawBand(*link->GroupHeader, &detail);
                m_openGroups.insert(link);
                if (m_stop)
                    break;
            }
            if (column == 0) {
                lineTop = m_curY;
                lineHeight = 0;
            }
            place(placed, m_leftMargin + column * step, lineTop);
            m_freshPage = false;
            lineHeight = std::max(lineHeight, placed.rect.height());
            if (++column >= columns)
                endLine();
            if (link && link->DataSource->valueAt(link->DataSource->row + 1) != link->lastValue) {
                endLine();
                if (link->GroupFooter && link->GroupFooter->Enabled)
                    drawBand(*link->GroupFooter, &detail);
            }
            for (TAlField *field : rowFields)
                field->next();
            if (std::none_of(fields.begin(), fields.end(), [](const TAlField *f) { return f->hasValue(); }))
                break;
        }
        endLine();
    }

    void newPage()
    {
        endPage();
        startPage();
    }

    // A new page inside a detail: its detail headers again and, while a group runs, the
    // group's header.
    void newPageForDetail(tAlBand &detail, bool groupStarting)
    {
        newPage();
        if (m_stop)
            return;
        for (const tAlBand *header : bandsOfGroup(m_detailHeaders, &detail)) {
            if (header->Enabled)
                placeColumns(prepare(*header, -1), *header);
        }
        TAlDetailLink *link = detail.link;
        if (link && link->GroupHeader && link->GroupHeader->Enabled && !groupStarting && m_openGroups.contains(link))
            placeColumns(prepare(*link->GroupHeader, -1), *link->GroupHeader);
        m_freshPage = true;
    }

    void startPage()
    {
        const bool first = m_firstPage;
        m_result.pages.append(LaidOutPage());
        m_firstPage = false;
        m_pageOpen = true;
        m_curY = -m_page.offsetTop;
        for (const tAlBand *band : m_pageHeaders) {
            if (!band->Enabled || (band->NotFirstPageHeader && first) || (band->FirstPageHeaderOnly && !first))
                continue;
            placeColumns(prepare(*band, -1), *band);
        }
        ++m_pageCounter;
        m_freshPage = true;
        if (ReportProgressBox *box = m_report.progressBox) {
            box->setLabel(QStringLiteral("Page ") + QString::number(m_pageCounter));
            if (box->keepAlive())
                m_report.cancelled = true;
        }
        if (m_report.cancelled)
            m_stop = true;
    }

    void endPage()
    {
        if (!m_pageOpen)
            return;
        m_curY = m_usableBottom;
        for (const tAlBand *band : m_pageFooters)
            if (band->Enabled)
                placeColumns(prepare(*band, -1), *band);
        m_pageOpen = false;
    }

    TAlReport &m_report;
    ReportForm &m_form;
    LayoutPage m_page;
    int m_ppi;
    int m_leftMargin = 0;
    int m_rightEdge = 0;
    QString m_dateText;
    QString m_timeText;

    QList<tAlBand *> m_titles, m_pageHeaders, m_detailHeaders, m_details, m_detailFooters, m_pageFooters,
        m_reportFooters;
    QSet<const TAlDetailLink *> m_openGroups;

    ReportLayout m_result;
    int m_curY = 0;
    int m_usableBottom = 0;
    bool m_firstPage = true;
    bool m_pageOpen = false;
    bool m_freshPage = false;
    bool m_stop = false;
    int m_pageCounter = 0;
    int m_rowCounter = 0;
    int m_rowCount = 0;
};

} // namespace

ReportLayout LayOutReport(TAlReport &report, const LayoutPage &page)
{
    if (!report.form())
        return {};
    LayoutRun run(report, page);
    return run.run();
}

QStringList BreakTextLines(const QString &text, const QFontMetricsF &metrics, double width)
{
    return BreakTextLines(
        text, [&metrics](const QString &t) { return metrics.horizontalAdvance(t); }, width);
}

QStringList BreakTextLines(const QString &text, const std::function<double(const QString &)> &advance, double width,
                           QList<double> *widths)
{
    QStringList lines;
    QList<double> lineWidths;
    auto flush = [&](const QString &p) {
        const double whole = advance(p);
        if (width <= 0 || whole <= width || !p.contains(u' ')) {
            lines.append(p);
            lineWidths.append(whole);
            return;
        }
        // Greedy word wrap; the blanks that indent the paragraph indent each of its lines.
        qsizetype start = 0;
        while (start < p.size() && p.at(start) == u' ')
            ++start;
        const QString indent = p.left(start);
        QString line = indent;
        double lineWidth = advance(indent);
        bool lineHasWord = false;
        qsizetype i = start;
        while (i < p.size()) {
            qsizetype end = p.indexOf(u' ', i);
            if (end < 0)
                end = p.size();
            const QString word = p.mid(i, end - i);
            if (!word.isEmpty()) {
                const QString candidate = lineHasWord ? QString(line + u' ' + word) : QString(line + word);
                const double candidateWidth = advance(candidate);
                if (lineHasWord && candidateWidth > width) {
                    lines.append(line);
                    lineWidths.append(lineWidth);
                    line = indent + word;
                    lineWidth = advance(line);
                } else {
                    line = candidate;
                    lineWidth = candidateWidth;
                }
                lineHasWord = true;
            }
            i = end + 1;
        }
        lines.append(line);
        lineWidths.append(lineWidth);
    };
    const qsizetype n = text.size();
    qsizetype begin = 0;
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c == u'\r' || c == u'\n') {
            flush(text.mid(begin, i - begin));
            if (c == u'\r' && i + 1 < n && text.at(i + 1) == u'\n')
                ++i;
            begin = i + 1;
        }
    }
    if (begin < n)
        flush(text.mid(begin));
    // Blank lines at the end take no room.
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty()) {
        lines.removeLast();
        lineWidths.removeLast();
    }
    if (widths)
        *widths = lineWidths;
    return lines;
}

void PaintPage(QPainter &painter, const LaidOutPage &page)
{
    for (const PlacedBand &band : page.bands) {
        if (band.background != clNone)
            painter.fillRect(band.rect, toColor(band.background));
        for (const PlacedControl &pc : band.controls) {
            if (pc.clipped) {
                if (pc.clip.isEmpty())
                    continue; // nothing of it lies within its band
                painter.save();
                painter.setClipRect(pc.clip);
            }
            switch (pc.control->kind()) {
            case AlComponent::Kind::Label:
            case AlComponent::Kind::Field:
            case AlComponent::Kind::SysField: {
                const auto &label = static_cast<const TAlLabel &>(*pc.control);
                if (!label.Transparent)
                    painter.fillRect(pc.rect, toColor(label.Color));
                if (pc.lines.isEmpty())
                    break;
                const QFontMetricsF &metrics = label.metrics();
                painter.setFont(label.outputFont);
                painter.setPen(label.Enabled ? toColor(label.Font.color) : QColor(128, 128, 128));
                const double lh = lineHeight(metrics);
                double baseline = pc.rect.top() + metrics.ascent();
                for (qsizetype i = 0; i < pc.lines.size(); ++i) {
                    painter.drawText(QPointF(lineLeft(pc.rect, label.Alignment, pc.widths.at(i)), baseline),
                                     pc.lines.at(i));
                    baseline += lh;
                }
                break;
            }
            case AlComponent::Kind::Shape: {
                const auto &shape = static_cast<const TAlShape &>(*pc.control);
                // Pen widths are design pixels; width 0 is the thinnest line the device draws.
                const double penWidth = shape.Pen.width * double(LayoutDpi) / 96.0;
                QPen pen(toColor(shape.Pen.color), penWidth);
                pen.setStyle(shape.Pen.style);
                pen.setJoinStyle(Qt::MiterJoin);
                painter.setPen(pen);
                painter.setBrush(shape.Brush.style == Qt::NoBrush
                                     ? QBrush(Qt::NoBrush)
                                     : QBrush(toColor(shape.Brush.color), shape.Brush.style));
                const double inset = shape.Pen.style == Qt::NoPen ? 0.0 : penWidth / 2.0;
                QRectF r = QRectF(pc.rect).adjusted(inset, inset, -inset, -inset);
                if (shape.Shape == TShapeType::stSquare || shape.Shape == TShapeType::stRoundSquare ||
                    shape.Shape == TShapeType::stCircle) {
                    const double side = std::min(r.width(), r.height());
                    r = QRectF(r.center().x() - side / 2, r.center().y() - side / 2, side, side);
                }
                switch (shape.Shape) {
                case TShapeType::stRectangle:
                case TShapeType::stSquare:
                    if (shape.Pen.style == Qt::NoPen)
                        painter.fillRect(QRectF(pc.rect), painter.brush());
                    else
                        painter.drawRect(r);
                    break;
                case TShapeType::stRoundRect:
                case TShapeType::stRoundSquare: {
                    const double radius = std::min(r.width(), r.height()) / 4.0;
                    painter.drawRoundedRect(r, radius, radius);
                    break;
                }
                case TShapeType::stEllipse:
                case TShapeType::stCircle:
                    painter.drawEllipse(r);
                    break;
                }
                painter.setBrush(Qt::NoBrush);
                break;
            }
            case AlComponent::Kind::Image: {
                const auto &image = static_cast<const tAlImage &>(*pc.control);
                if (image.Picture.isNull())
                    break;
                QSizeF size = QSizeF(image.Picture.size()) * (double(LayoutDpi) / 96.0);
                if (image.Stretch)
                    size.scale(QSizeF(pc.rect.size()), Qt::KeepAspectRatio);
                QPointF topLeft = pc.rect.topLeft();
                if (image.Center)
                    topLeft +=
                        QPointF((pc.rect.width() - size.width()) / 2.0, (pc.rect.height() - size.height()) / 2.0);
                painter.save();
                painter.setClipRect(pc.rect, Qt::IntersectClip);
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
                painter.drawImage(QRectF(topLeft, size), image.Picture);
                painter.restore();
                break;
            }
            default:
                break;
            }
            if (pc.clipped)
                painter.restore();
        }
    }
}

} // namespace tb
