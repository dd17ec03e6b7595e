#include "document/DocumentSummary.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QTextStream>

namespace tb {

QString DocumentSummary(const ScheduleDocument &doc)
{
    int scenes = 0, dividers = 0, restDays = 0, banners = 0, other = 0;
    float pages = 0.0f;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &row = doc.strips[i];
        if (row.isScene()) {
            ++scenes;
            pages = float(double(pages) + PageLengthOf(row));
        } else if (row.isDayDivider()) {
            ++dividers;
        } else if (row.isAutoRestDay()) {
            ++restDays;
        } else if (row.isBanner()) {
            ++banners;
        } else {
            ++other;
        }
    }

    QList<int> perCategory(doc.categoryCount() + 1, 0);
    int uncategorised = 0;
    for (int j = 1; j <= doc.elements.count(); ++j) {
        const int category = legacy::StrToIntDef(doc.elements[j][ElementField::CategoryNumber], 0);
        if (category >= 1 && category <= doc.categoryCount())
            ++perCategory[category];
        else
            ++uncategorised;
    }

    QString text;
    QTextStream out(&text);
    const double start = StartDateSerial(doc);
    out << "Title:       " << doc.values.PictureTitle << '\n';
    out << "Company:     " << doc.values.Company << '\n';
    out << "Start date:  "
        << (start != 0.0 ? legacy::FormatDate(legacy::SerialToDate(start), QString::fromLatin1(legacy::DayDatePattern))
                         : QStringLiteral("none"))
        << '\n';
    out << "Rest days:   "
        << (doc.values.AutoRestDayRule.isEmpty() ? QStringLiteral("none") : doc.values.AutoRestDayRule) << '\n';
    out << "Strips:      " << doc.strips.count() << " (" << scenes << " scenes, " << dividers << " day dividers, "
        << banners << " banners, " << restDays << " auto rest days";
    if (other > 0)
        out << ", " << other << " of unknown kind";
    out << ")\n";
    const QString pageText = FormatPageLength(pages);
    out << "Pages:       " << (pageText.isEmpty() ? QStringLiteral("0") : pageText) << '\n';
    out << "Elements:    " << doc.elements.count() << '\n';
    for (int c = 1; c <= doc.categoryCount(); ++c) {
        if (perCategory[c] > 0)
            out << "  " << qSetFieldWidth(12) << Qt::left << doc.categories[c - 1].name << qSetFieldWidth(0)
                << perCategory[c] << '\n';
    }
    if (uncategorised > 0)
        out << "  " << qSetFieldWidth(12) << Qt::left << "(no category)" << qSetFieldWidth(0) << uncategorised << '\n';
    out << "Days:        " << doc.days.productionDays << " production, " << doc.days.shootingDays << " shooting\n";
    out.flush();
    return text;
}

} // namespace tb
