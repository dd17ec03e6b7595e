#include "reports/AlLayout.h"

#include "document/LegacyText.h"

#include <QLocale>
#include <QPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

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

bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c == u' ' || c == u'\u00A0'; });
}

// Nothing but white space (what trimming would leave empty).
bool isWhite(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
}

int textWidth(const QList<TextLine> &lines)
{
    double width = 0;
    for (const TextLine &line : lines)
        width = std::max(width, line.width);
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

void setLines(PlacedControl &pc, const TAlLabel &label, int wrapWidth)
{
    // Shared with the label's kept lines, not copied.
    pc.lines = BreakText(pc.text, label.outputFont, label.WordWrap ? wrapWidth : 0, &label);
}

// A text that does not fit its place is never cut silently: the lines that fit are shown,
// and the last one shown, or a line too wide for the place, ends in an ellipsis.
void markCut(PlacedControl &pc, const TAlLabel &label)
{
    const QFontMetricsF &metrics = label.metrics();
    const int lh = lineHeight(metrics);
    const QRect &clip = pc.clip;
    if (clip.isEmpty() || pc.lines.isEmpty())
        return;
    const int room = std::max(1, (clip.bottom() + 1 - pc.rect.top()) / std::max(1, lh));
    const bool linesCut = room < pc.lines.size();
    if (linesCut)
        pc.lines.resize(room);
    const double width = clip.width();
    for (qsizetype i = 0; i < pc.lines.size(); ++i) {
        const bool last = linesCut && i == pc.lines.size() - 1;
        if (!last && pc.lines.at(i).width <= width)
            continue;
        const QString shortened = ElideLine(pc.lines.at(i).text, metrics, width, last);
        // The shortened line is laid out once more, as any other text, so that it is
        // drawn from its glyphs like the rest of the page.
        const QList<TextLine> &elided = label.paragraph(shortened, 0.0);
        if (elided.size() == 1)
            pc.lines[i] = elided.first();
        else
            pc.lines[i] = TextLine{shortened, metrics.horizontalAdvance(shortened), {}}; // shaped when drawn
        pc.cut = true;
    }
    if (pc.cut)
        pc.rect = clip;
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
        pagesOfTotal();
        return m_result;
    }

private:
    static QString pageOfPages(qsizetype page, qsizetype total)
    {
        return QStringLiteral("Page %1 of %2").arg(page).arg(total > 0 ? QString::number(total) : QStringLiteral("?"));
    }

    // Every page is laid out before any is drawn, so "Page x of y" gets its total here.
    void pagesOfTotal()
    {
        const qsizetype total = m_result.pages.size();
        for (qsizetype p = 0; p < total; ++p) {
            for (PlacedBand &band : m_result.pages[p].bands) {
                for (PlacedControl &pc : band.controls) {
                    if (pc.control->kind() != AlComponent::Kind::SysField ||
                        static_cast<const TAlSysField *>(pc.control)->DataType != tAlSysDataType::alr_PageOfPages)
                        continue;
                    const auto &label = static_cast<const TAlLabel &>(*pc.control);
                    const int oldWidth = textWidth(pc.lines);
                    pc.text = pageOfPages(p + 1, total);
                    setLines(pc, label, pc.rect.width());
                    if (label.AutoSize && !label.WordWrap) {
                        const int grow = textWidth(pc.lines) - oldWidth;
                        if (label.Alignment == TAlignment::taRightJustify)
                            pc.rect.setLeft(pc.rect.left() - grow);
                        else if (label.Alignment == TAlignment::taCenter)
                            pc.rect.setLeft(pc.rect.left() - grow / 2);
                        pc.rect.setWidth(textWidth(pc.lines));
                    }
                }
            }
        }
    }

    // Whether a band shows anything that changes with the page (a page number): only such
    // a band is prepared again when it moves to a new page.
    bool showsPageState(const tAlBand &band) const
    {
        auto it = m_pageState.constFind(&band);
        if (it == m_pageState.cend()) {
            bool shows = false;
            for (const tAlControl *c : band.controls)
                shows = shows || c->kind() == AlComponent::Kind::SysField;
            it = m_pageState.insert(&band, shows);
        }
        return *it;
    }

    // The current value of the field of that name (blank when there is none).
    QString namedFieldText(const QString &name) const
    {
        auto it = m_namedFields.constFind(name);
        if (it == m_namedFields.cend()) {
            const AlComponent *found = m_form.find(name);
            it = m_namedFields.insert(name, found && found->kind() == AlComponent::Kind::Field
                                                ? static_cast<const TAlField *>(found)
                                                : nullptr);
        }
        return *it ? (*it)->value() : QString();
    }

    QColor brushOf(const TAlShape &shape) const
    {
        if (shape.BrushField.isEmpty())
            return QColor();
        const QString name = namedFieldText(shape.BrushField).trimmed();
        return name.isEmpty() ? QColor() : QColor::fromString(name);
    }

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
        case tAlSysDataType::alr_PageOfPages:
            // The total is known once every page is laid out (see pagesOfTotal()).
            return pageOfPages(std::max<qsizetype>(1, m_result.pages.size()), 0);
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
        QList<int> growth;   // how much each placed control grew

        for (const tAlControl *control : band.controls) {
            if (!control->visible || (m_page.preview && !control->VisibleInPreview))
                continue;
            if (isLabel(control) && !static_cast<const TAlLabel *>(control)->LabelFor.isEmpty() &&
                namedFieldText(static_cast<const TAlLabel *>(control)->LabelFor).trimmed().isEmpty())
                continue;
            PlacedControl pc;
            pc.control = control;
            QRect r(scaleX(control->Left), scaleY(control->Top), scaleX(control->Width), scaleY(control->Height));
            int grown = 0;
            if (isLabel(control)) {
                const auto &label = static_cast<const TAlLabel &>(*control);
                const QFontMetricsF &metrics = label.metrics();
                pc.text = textOf(label);
                setLines(pc, label, r.width());
                const int lh = lineHeight(metrics);
                const int textHeight = int(pc.lines.size()) * lh;
                if (label.AutoSize) {
                    if (!label.WordWrap) {
                        const int w = textWidth(pc.lines);
                        if (label.Alignment == TAlignment::taRightJustify)
                            r.setLeft(r.left() + r.width() - w);
                        else if (label.Alignment == TAlignment::taCenter)
                            r.setLeft(r.left() + (r.width() - w) / 2);
                        r.setWidth(w);
                    }
                    r.setHeight(std::max(textHeight, lh));
                }
                if (expand && textHeight > r.height())
                    r.setHeight(textHeight);
                if (expand)
                    grown = r.height() - scaleY(control->Height);
            } else {
                if (expand && control->Top + control->Height >= band.Height - 1)
                    anchored.append(int(placed.controls.size()));
                if (control->kind() == AlComponent::Kind::Shape)
                    pc.brush = brushOf(static_cast<const TAlShape &>(*control));
            }
            pc.rect = r;
            placed.controls.append(std::move(pc));
            growth.append(std::max(0, grown));
        }
        if (expand) {
            // A grown text pushes down what lies below it in its column, as lines of a
            // page do: taken by design top, each control moves by the most that any grown
            // control above it (overlapping it sideways) grew and moved.
            QList<int> order(placed.controls.size());
            std::iota(order.begin(), order.end(), 0);
            std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
                return placed.controls.at(a).control->Top < placed.controls.at(b).control->Top;
            });
            QList<int> shift(placed.controls.size(), 0);
            for (qsizetype k = 0; k < order.size(); ++k) {
                const int i = order.at(k);
                const tAlControl *c = placed.controls.at(i).control;
                for (qsizetype m = 0; m < k; ++m) {
                    const int j = order.at(m);
                    const tAlControl *above = placed.controls.at(j).control;
                    const int moved = shift.at(j) + growth.at(j);
                    if (moved <= 0 || c->Top < above->Top + above->Height - 1)
                        continue;
                    if (c->Left >= above->Left + above->Width || above->Left >= c->Left + c->Width)
                        continue;
                    shift[i] = std::max(shift.at(i), moved);
                }
            }
            int extra = 0;
            for (qsizetype i = 0; i < placed.controls.size(); ++i) {
                if (anchored.contains(int(i)))
                    continue;
                placed.controls[i].rect.translate(0, shift.at(i));
                extra = std::max(extra, shift.at(i) + growth.at(i));
            }
            height = designHeight + extra;
        }
        // In a grown band, a shape or picture reaching the band's bottom keeps to it: one
        // that starts in the band's upper half (a box, a shade, a vertical rule) stretches,
        // any other (a rule under the row) moves.
        for (int index : anchored) {
            PlacedControl &pc = placed.controls[index];
            const int gapBelow = std::max(0, designHeight - (pc.rect.top() + pc.rect.height()));
            if (pc.control->Top <= 1 || 2 * pc.control->Top < band.Height)
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
                    const int w = textWidth(pc.lines);
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
                    if (isLabel(pc.control))
                        markCut(pc, static_cast<const TAlLabel &>(*pc.control));
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
            if (showsPageState(band))
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
                    if (showsPageState(detail))
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
    mutable QHash<QString, const TAlField *> m_namedFields;
    mutable QHash<const tAlBand *, bool> m_pageState;

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

namespace {

// Glyphs as a PDF file stores them: each glyph is written with its position, so blanks,
// which show nothing, are left out, and positions are kept in whole layout units (1/1200
// inch), which a file writes in fewer digits. Both make the file smaller and faster to
// write and leave the page as it was.
QList<QGlyphRun> CompactGlyphs(const QList<QGlyphRun> &runs)
{
    QList<QGlyphRun> result;
    result.reserve(runs.size());
    for (QGlyphRun run : runs) {
        const QRawFont font = run.rawFont();
        const QList<quint32> blanks = font.glyphIndexesForString(QStringLiteral(" \u00A0"));
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        QList<quint32> keptIndexes;
        QList<QPointF> keptPositions;
        keptIndexes.reserve(indexes.size());
        keptPositions.reserve(indexes.size());
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            if (blanks.contains(indexes.at(i)))
                continue;
            keptIndexes.append(indexes.at(i));
            keptPositions.append(QPointF(std::round(positions.at(i).x()), positions.at(i).y()));
        }
        if (keptIndexes.isEmpty())
            continue;
        run.setGlyphIndexes(keptIndexes);
        run.setPositions(keptPositions);
        result.append(run);
    }
    return result;
}

} // namespace

namespace {

// Latin text (the schedules' own) needs no shaping beyond one glyph per character and the
// font's kerning: its glyphs and advances come straight from the font, and the greedy
// line break is one pass over the advances. Anything else goes through the full layout.
bool IsPlainLatin(const QString &text)
{
    for (QChar c : text) {
        const char16_t u = c.unicode();
        // Latin letters, and the punctuation of typed scripts: dashes, curly quotes, the
        // ellipsis of a shortened line.
        if (u < 0x20 || (u > 0x24F && (u < 0x2010 || u > 0x2027)))
            return false;
    }
    return true;
}

std::optional<QList<TextLine>> LayOutPlainParagraph(const QString &paragraph, const QRawFont &font, double width)
{
    if (!font.isValid() || !IsPlainLatin(paragraph))
        return std::nullopt;
    const QList<quint32> glyphs = font.glyphIndexesForString(paragraph);
    if (glyphs.size() != paragraph.size() || glyphs.contains(0u))
        return std::nullopt; // a character the font lacks: the full layout finds another font
    const QList<QPointF> advances = font.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
    const qsizetype n = paragraph.size();
    QList<double> x(n + 1, 0.0); // x[i]: where character i starts
    for (qsizetype i = 0; i < n; ++i)
        x[i + 1] = x[i] + advances.at(i).x();
    const quint32 blank = font.glyphIndexesForString(QStringLiteral(" ")).value(0);
    const double ascent = font.ascent();
    qsizetype indentLength = 0;
    while (indentLength < n && paragraph.at(indentLength) == u' ')
        ++indentLength;
    const double indent = x[indentLength];

    QList<TextLine> result;
    // A line of characters [from, to); a continued line is moved right by the indent.
    auto addLine = [&](qsizetype from, qsizetype to, bool continued) {
        TextLine line;
        const double shift = continued ? indent : 0.0;
        line.text =
            continued ? paragraph.left(indentLength) + paragraph.mid(from, to - from) : paragraph.mid(from, to - from);
        line.width = shift + x[to] - x[from];
        QList<quint32> indexes;
        QList<QPointF> positions;
        indexes.reserve(to - from);
        positions.reserve(to - from);
        for (qsizetype i = from; i < to; ++i) {
            if (glyphs.at(i) == blank || paragraph.at(i) == u'\u00A0')
                continue;
            indexes.append(glyphs.at(i));
            positions.append(QPointF(std::round(shift + x[i] - x[from]), ascent));
        }
        if (!indexes.isEmpty()) {
            QGlyphRun run;
            run.setRawFont(font);
            run.setGlyphIndexes(indexes);
            run.setPositions(positions);
            line.glyphs.append(run);
        }
        result.append(std::move(line));
    };
    if (width <= 0.0 || x[n] <= width) {
        addLine(0, n, false);
        return result;
    }
    // Greedy word wrap at blanks, in one pass.
    qsizetype lineStart = 0;
    qsizetype lineEnd = -1; // end of the last word on the line, -1 while it has none
    bool continued = false;
    qsizetype i = indentLength;
    while (i < n) {
        while (i < n && paragraph.at(i) == u' ')
            ++i;
        if (i >= n)
            break;
        qsizetype end = i;
        while (end < n && paragraph.at(end) != u' ')
            ++end;
        const double shift = continued ? indent : 0.0;
        if (lineEnd >= 0 && shift + x[end] - x[lineStart] > width) {
            addLine(lineStart, lineEnd, continued);
            continued = true;
            lineStart = i;
        }
        lineEnd = end;
        i = end;
    }
    if (lineEnd >= 0)
        addLine(lineStart, lineEnd, continued);
    return result;
}

} // namespace

QList<TextLine> LayOutParagraph(const QString &paragraph, const QFont &font, double width)
{
    return LayOutParagraph(paragraph, font, QRawFont::fromFont(font), width);
}

QList<TextLine> LayOutParagraph(const QString &paragraph, const QFont &font, const QRawFont &raw, double width)
{
    if (std::optional<QList<TextLine>> plain = LayOutPlainParagraph(paragraph, raw, width))
        return *plain;
    QList<TextLine> result;
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(width > 0.0 ? QTextOption::WordWrap : QTextOption::NoWrap);
    if (width <= 0.0)
        option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    // The blanks that indent the paragraph indent each of its wrapped lines.
    qsizetype indentLength = 0;
    while (indentLength < paragraph.size() && paragraph.at(indentLength) == u' ')
        ++indentLength;
    double indent = 0.0;
    layout.beginLayout();
    for (int i = 0;; ++i) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        if (width <= 0.0) {
            line.setLineWidth(1e9);
        } else if (i == 0) {
            line.setLineWidth(width);
        } else {
            if (i == 1 && indentLength > 0 && indentLength < paragraph.size())
                indent = layout.lineAt(0).cursorToX(int(indentLength));
            line.setLineWidth(std::max(1.0, width - indent));
            line.setPosition(QPointF(indent, 0.0));
        }
    }
    layout.endLayout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        qsizetype length = line.textLength();
        // A wrapped line keeps no blanks at its end.
        if (width > 0.0)
            while (length > 0 && paragraph.at(line.textStart() + length - 1) == u' ')
                --length;
        TextLine t;
        t.text = paragraph.mid(line.textStart(), length);
        if (i > 0)
            t.text.prepend(paragraph.left(indentLength));
        t.width = line.x() + line.naturalTextWidth();
        if (length > 0)
            t.glyphs = CompactGlyphs(layout.glyphRuns(line.textStart(), int(length)));
        result.append(std::move(t));
    }
    if (result.isEmpty())
        result.append(TextLine());
    return result;
}

QList<TextLine> BreakText(const QString &text, const QFont &font, double width, const TAlLabel *label)
{
    // One paragraph (most texts): its kept lines as they are, shared rather than copied.
    if (!text.isEmpty() && !std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c == u'\r' || c == u'\n'; })) {
        QList<TextLine> lines = label ? label->paragraph(text, width) : LayOutParagraph(text, font, width);
        while (!lines.isEmpty() && isWhite(lines.last().text))
            lines.removeLast();
        return lines;
    }
    QList<TextLine> lines;
    auto flush = [&](const QString &p) {
        if (p.isEmpty()) {
            lines.append(TextLine());
            return;
        }
        if (label)
            lines += label->paragraph(p, width);
        else
            lines += LayOutParagraph(p, font, width);
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
    while (!lines.isEmpty() && isWhite(lines.last().text))
        lines.removeLast();
    return lines;
}

QStringList BreakTextLines(const QString &text, const QFont &font, double width)
{
    QStringList result;
    for (const TextLine &line : BreakText(text, font, width))
        result.append(line.text);
    return result;
}

QString ElideLine(const QString &text, const QFontMetricsF &metrics, double width, bool force)
{
    static const QString ellipsis(QChar(0x2026));
    if (!force && metrics.horizontalAdvance(text) <= width)
        return text;
    QString candidate = text;
    while (!candidate.isEmpty() && candidate.back() == u' ')
        candidate.chop(1);
    candidate += ellipsis;
    if (metrics.horizontalAdvance(candidate) <= width)
        return candidate;
    // Too long even so: the toolkit's elision cuts it at the width and ends it in "…".
    return metrics.elidedText(candidate, Qt::ElideRight, width);
}

LabelFit FitLabelText(const TAlLabel &label, const QString &text, int designPpi)
{
    LabelFit fit;
    const int width = ScaleToOutput(label.Width, LayoutDpi, designPpi);
    const int height = ScaleToOutput(label.Height, LayoutDpi, designPpi);
    fit.lines = BreakText(text, label.outputFont, label.WordWrap ? width : 0, &label);
    fit.room = std::max(1, height / std::max(1, lineHeight(label.metrics())));
    fit.width = width;
    return fit;
}

namespace {

// The page's text by font and colour. A PDF file holds each drawn text as an object of its
// own that sets colour, font and position anew; a page drawn in a few batches holds a few
// objects instead of one per line. Text is drawn over the page's shapes and pictures, which
// is where every template puts it.
class GlyphBatches
{
public:
    void add(const QGlyphRun &run, const QColor &colour, const QPointF &origin)
    {
        const QRawFont font = run.rawFont();
        // Runs come in long stretches of one font and colour: the last batch first.
        if (m_last < 0 || m_batches.at(m_last).colour != colour || m_batches.at(m_last).font != font) {
            m_last = -1;
            for (qsizetype i = 0; i < m_batches.size(); ++i) {
                if (m_batches.at(i).colour == colour && m_batches.at(i).font == font) {
                    m_last = i;
                    break;
                }
            }
            if (m_last < 0) {
                m_batches.append(Batch{font, colour, {}, {}});
                m_last = m_batches.size() - 1;
            }
        }
        Batch &batch = m_batches[m_last];
        batch.indexes += run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        const qsizetype start = batch.positions.size();
        batch.positions.resize(start + positions.size());
        QPointF *out = batch.positions.data() + start;
        for (const QPointF &p : positions)
            *out++ = p + origin;
    }

    void draw(QPainter &painter)
    {
        for (const Batch &b : std::as_const(m_batches)) {
            QGlyphRun run;
            run.setRawFont(b.font);
            run.setGlyphIndexes(b.indexes);
            run.setPositions(b.positions);
            painter.setPen(b.colour);
            painter.drawGlyphRun(QPointF(0, 0), run);
        }
        m_batches.clear();
        m_last = -1;
    }

private:
    struct Batch
    {
        QRawFont font;
        QColor colour;
        QList<quint32> indexes;
        QList<QPointF> positions;
    };
    QList<Batch> m_batches;
    qsizetype m_last = -1; // the batch the last run went to
};

} // namespace

void PaintPage(QPainter &painter, const LaidOutPage &page)
{
    // A recorded preview page keeps texts as texts; glyph runs would be recorded as outlines.
    const bool useGlyphs = !painter.device() || painter.device()->devType() != QInternal::Picture;
    GlyphBatches batches;
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
                const QColor colour = label.Enabled ? toColor(label.Font.color) : QColor(128, 128, 128);
                const double lh = lineHeight(metrics);
                double top = pc.rect.top();
                // The glyphs shaped when the lines were measured. Unclipped plain text goes
                // into the page's batches (see GlyphBatches), clipped or decorated text is
                // drawn at once, line by line. Font and pen are set only for what is drawn at
                // once: each change of either costs the PDF file a new text state.
                const bool batch = !pc.clipped && !label.outputFont.underline() && !label.outputFont.strikeOut();
                bool penSet = false;
                auto setPen = [&] {
                    if (penSet)
                        return;
                    painter.setFont(label.outputFont);
                    painter.setPen(colour);
                    penSet = true;
                };
                for (const TextLine &line : pc.lines) {
                    const double left = lineLeft(pc.rect, label.Alignment, line.width);
                    const QList<QGlyphRun> &glyphs = line.glyphs;
                    if (useGlyphs && !glyphs.isEmpty()) {
                        for (const QGlyphRun &run : glyphs) {
                            if (batch) {
                                batches.add(run, colour, QPointF(std::round(left), top));
                            } else {
                                setPen();
                                painter.drawGlyphRun(QPointF(left, top), run);
                            }
                        }
                    } else if (!isBlank(line.text)) {
                        // Blanks have no glyphs to draw: the lines of a field that holds
                        // only blanks are left as they are.
                        setPen();
                        painter.drawText(QPointF(left, top + metrics.ascent()), line.text);
                    }
                    top += lh;
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
                if (pc.brush.isValid())
                    painter.setBrush(QBrush(pc.brush, Qt::SolidPattern));
                else
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
                // A picture that came losslessly (a PNG logo) stays so in a PDF file; a JPEG
                // one may be stored as JPEG again.
                painter.setRenderHint(QPainter::LosslessImageRendering,
                                      image.Picture.text(QStringLiteral("format")) != QLatin1String("jpeg"));
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
    batches.draw(painter);
}

} // namespace tb
