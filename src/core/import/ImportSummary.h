#pragma once

#include "document/ScheduleDocument.h"

#include <QString>
#include <QStringList>

namespace tb {

// What an import made, and what it had to guess, shown after every import.
struct ImportSummary
{
    int scenes = 0;
    int characters = 0;
    double pages = 0.0;
    int withoutTimeOfDay = 0; // headings whose time of day is "?" or blank
    int withoutLocation = 0;
    QStringList dropped; // characters removed in the review

    // "Imported 42 scenes, 12 characters, 98 3/8 pages." and, on further lines, the
    // guesses; lines end with "\r".
    QString text() const;
};

ImportSummary SummarizeImport(const ScheduleDocument &doc, const QStringList &dropped = {});

} // namespace tb
