#include "import/ImportSummary.h"

#include "document/DocumentOperations.h"

namespace tb {

namespace {

QString Count(int n, const char *one, const char *many)
{
    return QString::number(n) + u' ' + QString::fromLatin1(n == 1 ? one : many);
}

} // namespace

QString ImportSummary::text() const
{
    const QString length = pages > 0.0 ? FormatPageLength(pages) : QStringLiteral("0");
    QString out = QStringLiteral("Imported ") + Count(scenes, "scene", "scenes") + QStringLiteral(", ") +
                  Count(characters, "character", "characters") + QStringLiteral(", ") + length +
                  (pages > 0.0 && pages <= 1.0 ? QStringLiteral(" page.") : QStringLiteral(" pages."));
    if (withoutTimeOfDay > 0)
        out += QStringLiteral("\rGuessed: ") +
               Count(withoutTimeOfDay, "heading without a time of day", "headings without a time of day") +
               QStringLiteral(" (shown as ?).");
    if (withoutLocation > 0)
        out += QStringLiteral("\rGuessed: ") +
               Count(withoutLocation, "scene without a location", "scenes without a location") + u'.';
    if (!dropped.isEmpty())
        out += QStringLiteral("\rDropped in the review: ") + dropped.join(QStringLiteral(", ")) + u'.';
    return out;
}

ImportSummary SummarizeImport(const ScheduleDocument &doc, const QStringList &dropped)
{
    ImportSummary summary;
    for (int s = 1; s <= doc.strips.count(); ++s) {
        const StripRecord &strip = doc.strips[s];
        if (strip[StripField::StripKind] != StripKinds::Scene)
            continue;
        ++summary.scenes;
        summary.pages += PageLengthOf(strip);
        const QString &time = strip[StripField::DayNight];
        if (time.isEmpty() || time == QLatin1String("?"))
            ++summary.withoutTimeOfDay;
        if (strip[StripField::Location].trimmed().isEmpty())
            ++summary.withoutLocation;
    }
    for (int e = 1; e <= doc.elements.count(); ++e) {
        if (doc.elements[e][ElementField::CategoryNumber] == QLatin1String("1"))
            ++summary.characters;
    }
    summary.dropped = dropped;
    return summary;
}

} // namespace tb
