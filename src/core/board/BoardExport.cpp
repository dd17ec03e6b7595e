#include "board/BoardExport.h"

#include "board/DrawBoard.h"
#include "document/AtomicWrite.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/StripWords.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

#include <cmath>

namespace tb {

namespace {

// ---- What both formats show of a strip --------------------------------------------

QString kindText(const StripRecord &strip)
{
    if (strip.isScene())
        return QStringLiteral("Scene");
    if (strip.isDayDivider())
        return QStringLiteral("Day divider");
    if (strip.isAutoRestDay())
        return QStringLiteral("Auto rest day");
    if (strip.isBanner())
        return QStringLiteral("Banner");
    return QStringLiteral("Unknown");
}

// A page length in whole eighths, rounded as the board shows it.
int eighthsOf(double pages)
{
    const double whole = std::trunc(pages);
    return int(whole) * 8 + int(std::nearbyint((pages - whole) * 8));
}

// The production day a strip stands on. A scene's day field counts the days ended
// before it, so a scene falls in the day after; dividers, banners and rest days carry
// the day they end or stand for.
int productionDayOf(const StripRecord &strip)
{
    const int day = legacy::StrToIntDef(strip[StripField::DayNumber], 0);
    return strip.isScene() ? day + 1 : day;
}

int shootingDayOf(const StripRecord &strip)
{
    const int day = legacy::StrToIntDef(strip[StripField::ShootDayNumber], 0);
    return strip.isScene() ? day + 1 : day;
}

// The date of the strip's day; invalid without a start date or a day.
QDate dateOf(const ScheduleDocument &doc, const StripRecord &strip)
{
    const double start = StartDateSerial(doc);
    const int day = productionDayOf(strip);
    if (start == 0.0 || day < 1)
        return {};
    return legacy::SerialToDate(start + day - 1);
}

// The strip's elements of one category, one text each ("id - name" for the cast),
// in the order they were assigned.
QStringList elementsOf(const ScheduleDocument &doc, int row, int category)
{
    QStringList names;
    for (int element : AssignedElements(doc, row)) {
        if (element < 1 || element > doc.elements.count())
            continue;
        const ElementRecord &e = doc.elements[element];
        if (legacy::StrToIntDef(e[ElementField::CategoryNumber], 0) != category)
            continue;
        names.append(category == 1 ? e[ElementField::BoardId] + QStringLiteral(" - ") + e[ElementField::Description]
                                   : e[ElementField::Description]);
    }
    return names;
}

// ---- CSV ----------------------------------------------------------------------------

QString csvField(const QString &text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    QString quoted = text;
    quoted.replace(u'"', QStringLiteral("\"\""));
    return u'"' + quoted + u'"';
}

void appendCsvRow(QString &out, const QStringList &fields)
{
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            out += u',';
        out += csvField(fields.at(i));
    }
    out += QStringLiteral("\r\n");
}

// ---- HTML ---------------------------------------------------------------------------

QString esc(const QString &text)
{
    return text.toHtmlEscaped();
}

QString cssColour(const QColor &colour)
{
    return colour.name(QColor::HexRgb);
}

QString bandStyle(const StripRecord &strip, const BoardStyle &style)
{
    return QStringLiteral("background:%1;color:%2")
        .arg(cssColour(StripColour(strip, style)), cssColour(StripTextColour(strip, style)));
}

QString pagesText(double pages)
{
    const QString text = FormatPageLength(pages);
    return text.isEmpty() ? QStringLiteral("0") : text;
}

// The logo as an embedded picture, so the page needs no other file; empty when there
// is none or it cannot be read.
QString logoImage(const ScheduleDocument &doc)
{
    const QString path = doc.values.LogoFile.trimmed();
    if (path.isEmpty())
        return {};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull())
        return {};
    if (image.height() > 160)
        image = image.scaledToHeight(160, Qt::SmoothTransformation);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return {};
    return QStringLiteral("<img class=\"logo\" alt=\"\" src=\"data:image/png;base64,") +
           QString::fromLatin1(png.toBase64()) + QStringLiteral("\">");
}

const char PageStyle[] = R"(
*{box-sizing:border-box}
body{font-family:Arial,Helvetica,sans-serif;margin:0 auto;max-width:64rem;padding:.75rem;background:#fff;color:#000;line-height:1.3}
header{display:flex;flex-wrap:wrap;gap:1rem;align-items:flex-start;margin-bottom:1rem}
header .logo{max-height:6rem;max-width:40%}
h1{margin:0 0 .25rem;font-size:1.6rem}
.company{font-weight:bold}
.address{white-space:pre-line;color:#333}
dl.details{display:grid;grid-template-columns:max-content 1fr;gap:.1rem .75rem;margin:.5rem 0 0}
dl.details dt{font-weight:bold}
dl.details dd{margin:0}
.totals{margin:.5rem 0 1rem;font-weight:bold}
section.day{margin:0 0 1rem}
section.day h2{font-size:1.1rem;margin:0;padding:.3rem .5rem;background:#eee;border:1px solid #888}
.strip{display:flex;flex-wrap:wrap;gap:.15rem .75rem;padding:.35rem .5rem;border:1px solid #888;border-top:none}
.band{font-weight:bold;text-align:center;justify-content:center;border-top:1px solid #888;margin:0 0 1rem}
section.day .band{margin:0}
.scene{font-weight:bold;min-width:3.5rem}
.setting{font-weight:bold;flex:1 1 16rem}
.pages{min-width:4rem;text-align:right;margin-left:auto}
.synopsis{flex:1 1 100%}
.cast,.elements{flex:1 1 100%;font-size:.9rem}
.end{font-weight:bold;justify-content:space-between}
table.cast-list{border-collapse:collapse;margin-top:.5rem}
table.cast-list th,table.cast-list td{border:1px solid #888;padding:.2rem .5rem;text-align:left}
footer{margin-top:1rem;font-size:.8rem;color:#555}
@media print{
*{-webkit-print-color-adjust:exact;print-color-adjust:exact}
body{max-width:none;padding:0}
.strip,section.day h2{break-inside:avoid}
}
)";

class HtmlWriter
{
public:
    HtmlWriter(const ScheduleDocument &doc, const BoardStyle &style)
        : m_doc(doc)
        , m_style(style)
    {}

    QString page()
    {
        const ProductionValues &v = m_doc.values;
        const QString title = v.PictureTitle.isEmpty() ? QStringLiteral("Production board") : v.PictureTitle;
        m_out += QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                                "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                                "<meta name=\"generator\" content=\"Torvanbridge\">\n<title>") +
                 esc(title) + QStringLiteral("</title>\n<style>") + QString::fromLatin1(PageStyle) +
                 QStringLiteral("</style>\n</head>\n<body>\n");
        header(title);
        for (int i = 1; i <= m_doc.strips.count(); ++i)
            strip(i);
        closeDay();
        castList();
        m_out += QStringLiteral("<footer>Exported from Torvanbridge.</footer>\n</body>\n</html>\n");
        return m_out;
    }

private:
    void header(const QString &title)
    {
        const ProductionValues &v = m_doc.values;
        m_out += QStringLiteral("<header>\n");
        m_out += logoImage(m_doc);
        m_out += QStringLiteral("<div>\n<h1>") + esc(title) + QStringLiteral("</h1>\n");
        if (!v.Company.isEmpty())
            m_out += QStringLiteral("<div class=\"company\">") + esc(v.Company) + QStringLiteral("</div>\n");
        const QStringList address = legacy::SplitCommaText(v.CompanyAddress);
        if (!address.isEmpty())
            m_out += QStringLiteral("<div class=\"address\">") + esc(address.join(u'\n')) + QStringLiteral("</div>\n");
        const std::pair<const char *, QString> details[] = {
            {"Producer", v.Producer},      {"Director", v.Director},  {"1st AD", v.FirstAD},
            {"PM", v.ProductionManager},   {"Script", v.ScriptTitle}, {"Reference", v.Reference},
            {"Prepared by", v.PreparedBy},
        };
        QString list;
        for (const auto &[label, value] : details) {
            if (!value.isEmpty())
                list += QStringLiteral("<dt>") + QLatin1String(label) + QStringLiteral("</dt><dd>") + esc(value) +
                        QStringLiteral("</dd>\n");
        }
        const double start = StartDateSerial(m_doc);
        if (start != 0.0)
            list += QStringLiteral("<dt>Start date</dt><dd>") + esc(DayDateText(start, 1)) + QStringLiteral("</dd>\n");
        if (!list.isEmpty())
            m_out += QStringLiteral("<dl class=\"details\">\n") + list + QStringLiteral("</dl>\n");
        m_out += QStringLiteral("</div>\n</header>\n");

        double pages = 0;
        int scenes = 0;
        for (int i = 1; i <= m_doc.strips.count(); ++i) {
            if (m_doc.strips[i].isScene()) {
                ++scenes;
                pages += PageLengthOf(m_doc.strips[i]);
            }
        }
        m_out += QStringLiteral("<p class=\"totals\">%1 scenes, %2 pages; %3 production days, %4 shooting days</p>\n")
                     .arg(scenes)
                     .arg(esc(pagesText(pages)))
                     .arg(m_doc.days.productionDays)
                     .arg(m_doc.days.shootingDays);
    }

    void openDay(const StripRecord &first)
    {
        if (m_dayOpen)
            return;
        m_dayOpen = true;
        QString heading = QStringLiteral("Shooting day ") + QString::number(shootingDayOf(first));
        const QDate date = dateOf(m_doc, first);
        if (date.isValid())
            heading +=
                QStringLiteral(" \u2013 ") + legacy::FormatDate(date, QString::fromLatin1(legacy::DayDatePattern));
        m_out += QStringLiteral("<section class=\"day\">\n<h2>") + esc(heading) + QStringLiteral("</h2>\n");
    }

    void closeDay()
    {
        if (m_dayOpen)
            m_out += QStringLiteral("</section>\n");
        m_dayOpen = false;
    }

    void strip(int row)
    {
        const StripRecord &s = m_doc.strips[row];
        const QString colours = bandStyle(s, m_style);
        if (s.isScene()) {
            openDay(s);
            QString setting = IntExtWordOrCode(s[StripField::IntExt]);
            if (!setting.isEmpty())
                setting += QStringLiteral(". ");
            setting += s[StripField::Location].toUpper();
            if (!s[StripField::SetName].isEmpty())
                setting += QStringLiteral(" (") + s[StripField::SetName] + u')';
            const QString dayNight = DayNightWordOrCode(s[StripField::DayNight]);
            if (!dayNight.isEmpty())
                setting += QStringLiteral(" - ") + dayNight;
            m_out += QStringLiteral("<div class=\"strip\" style=\"") + colours + QStringLiteral("\">");
            m_out +=
                QStringLiteral("<span class=\"scene\">") + esc(s[StripField::SceneNumber]) + QStringLiteral("</span>");
            m_out += QStringLiteral("<span class=\"setting\">") + esc(setting) + QStringLiteral("</span>");
            m_out += QStringLiteral("<span class=\"pages\">") + esc(pagesText(PageLengthOf(s))) +
                     QStringLiteral(" pg</span>");
            if (!s[StripField::Synopsis].isEmpty())
                m_out += QStringLiteral("<span class=\"synopsis\">") + esc(s[StripField::Synopsis]) +
                         QStringLiteral("</span>");
            const QStringList cast = elementsOf(m_doc, row, 1);
            if (!cast.isEmpty())
                m_out += QStringLiteral("<span class=\"cast\">Cast: ") + esc(cast.join(QStringLiteral(", "))) +
                         QStringLiteral("</span>");
            m_out += QStringLiteral("</div>\n");
        } else if (s.isDayDivider()) {
            if (!m_dayOpen)
                openDay(s);
            m_out += QStringLiteral("<div class=\"strip end\" style=\"") + colours +
                     QStringLiteral("\"><span>End of shooting day ") + esc(s[StripField::ShootDayNumber]) +
                     QStringLiteral("</span><span>") + esc(pagesText(PageLengthOf(s))) +
                     QStringLiteral(" pages</span></div>\n");
            closeDay();
        } else {
            QString text = s.isAutoRestDay() ? QStringLiteral("Rest day") : s[StripField::Synopsis];
            if (s.isBanner()) {
                const int days = legacy::StrToIntDef(s[StripField::DayCount], 0);
                if (days >= 1)
                    text += QStringLiteral(" (%1 day%2)").arg(days).arg(days == 1 ? "" : "s");
            }
            if (!s[StripField::SceneNumber].isEmpty()) // the date on rest days and banners
                text += QStringLiteral(" \u2013 ") + s[StripField::SceneNumber];
            m_out += QStringLiteral("<div class=\"strip band\" style=\"") + colours + QStringLiteral("\">") +
                     esc(text) + QStringLiteral("</div>\n");
        }
    }

    void castList()
    {
        QString rows;
        for (int j = 1; j <= m_doc.elements.count(); ++j) {
            const ElementRecord &e = m_doc.elements[j];
            if (legacy::StrToIntDef(e[ElementField::CategoryNumber], 0) != 1)
                continue;
            rows += QStringLiteral("<tr><td>") + esc(e[ElementField::BoardId]) + QStringLiteral("</td><td>") +
                    esc(e[ElementField::Description]) + QStringLiteral("</td><td>") + esc(e[ElementField::PersonName]) +
                    QStringLiteral("</td></tr>\n");
        }
        if (rows.isEmpty())
            return;
        m_out += QStringLiteral("<h2>Cast</h2>\n<table class=\"cast-list\">\n<tr><th>Id</th><th>Character</th>"
                                "<th>Played by</th></tr>\n") +
                 rows + QStringLiteral("</table>\n");
    }

    const ScheduleDocument &m_doc;
    const BoardStyle &m_style;
    QString m_out;
    bool m_dayOpen = false;
};

// The one place an export reaches the disk: whole, or not at all (the earlier file,
// if any, stays as it was).
Result writeWhole(const QString &path, const QByteArray &bytes)
{
    const Result written = WriteFileAtomically(path, bytes);
    if (!written)
        return Result::failure(QStringLiteral("Could not write %1: %2").arg(path, written.message()));
    return Result::success();
}

} // namespace

std::optional<BoardExportFormat> BoardExportFormatOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("csv"))
        return BoardExportFormat::Spreadsheet;
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm"))
        return BoardExportFormat::Html;
    return std::nullopt;
}

QByteArray BoardCsv(const ScheduleDocument &doc)
{
    QString out;
    QStringList header{QStringLiteral("Kind"),        QStringLiteral("Day"),   QStringLiteral("Shooting day"),
                       QStringLiteral("Date"),        QStringLiteral("Scene"), QStringLiteral("INT/EXT"),
                       QStringLiteral("D/N"),         QStringLiteral("Set"),   QStringLiteral("Location"),
                       QStringLiteral("Synopsis"),    QStringLiteral("Pages"), QStringLiteral("Eighths"),
                       QStringLiteral("Script page"), QStringLiteral("Sheet"), QStringLiteral("Lock date"),
                       QStringLiteral("Notes")};
    for (const Category &category : doc.categories)
        header.append(category.name);
    appendCsvRow(out, header);

    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &s = doc.strips[i];
        const bool scene = s.isScene();
        const int day = productionDayOf(s);
        const QDate date = dateOf(doc, s);
        const int eighths = eighthsOf(PageLengthOf(s));
        const bool hasPages = scene || s.isDayDivider();
        QString lockDate = s[StripField::LockDate];
        const QDate locked = legacy::ParseShortDate(lockDate);
        if (locked.isValid())
            lockDate = locked.toString(Qt::ISODate);
        QStringList row{kindText(s),
                        day > 0 ? QString::number(day) : QString(),
                        day > 0 ? QString::number(shootingDayOf(s)) : QString(),
                        date.isValid() ? date.toString(Qt::ISODate) : QString(),
                        scene ? s[StripField::SceneNumber] : QString(),
                        IntExtWordOrCode(s[StripField::IntExt]),
                        DayNightWordOrCode(s[StripField::DayNight]),
                        s[StripField::SetName],
                        s[StripField::Location],
                        s[StripField::Synopsis],
                        hasPages ? QString::number(eighths / 8.0) : QString(),
                        hasPages ? QString::number(eighths) : QString(),
                        s[StripField::ScriptPage],
                        s[StripField::StripId],
                        lockDate,
                        legacy::SplitCommaText(s[StripField::Notes]).join(u'\n')};
        for (int c = 1; c <= doc.categoryCount(); ++c)
            row.append(scene ? elementsOf(doc, i, c).join(u'\n') : QString());
        appendCsvRow(out, row);
    }
    return out.toUtf8();
}

QByteArray BoardHtml(const ScheduleDocument &doc, const BoardStyle &style)
{
    return HtmlWriter(doc, style).page().toUtf8();
}

Result ExportBoard(const ScheduleDocument &doc, const BoardStyle &style, BoardExportFormat format, const QString &path)
{
    return writeWhole(path, format == BoardExportFormat::Html ? BoardHtml(doc, style) : BoardCsv(doc));
}

} // namespace tb
