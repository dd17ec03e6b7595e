#pragma once

// The production-wide details: titles, names, the company address and logo, the
// default call times and the crew list printed on call sheets.

#include "document/ScheduleDocument.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace tb {

// One crew line: position, name, contact.
using CrewLine = std::array<QString, 3>;

struct ProductionDetails
{
    QString title;
    QString company;
    QStringList address; // one item per line
    QString producer;
    QString director;
    QString firstAD;
    QString productionManager;
    QString script;
    QString reference;
    QString preparedBy;
    QString unitCall;
    QString costumeCall;
    QString makeupCall;
    QString wrapTime;
    QString logoFile;     // full path; blank = no logo
    QList<CrewLine> crew; // always CrewRowCount lines
};

ProductionDetails ReadProductionDetails(const ScheduleDocument &doc);

// Writes every value back (all fifty crew lines, blank ones included), updates the
// window title, marks the document modified and repaints.
void WriteProductionDetails(ScheduleDocument &doc, const ProductionDetails &details);

// Why the details cannot be stored as they stand; empty when they can. Every value is
// one line of the schedule file (an address line one item of a line), so none may
// hold a line break, and the crew has room for CrewRowCount lines, as in the dialog.
QString ProductionDetailsProblem(const ProductionDetails &details);

// Why a logo is being loaded, which decides the message when it cannot be.
enum class LogoSource {
    Stored, // the path kept in the document: the link may be broken
    Chosen, // a file just picked: it may be no picture
};

// Loads a logo picture with the image readers available (bitmap, icon, JPEG, PNG ...).
// A file that cannot be read gives a null image and the message for its source.
QImage LoadLogo(ScheduleDocument &doc, const QString &path, LogoSource source);

// The image file patterns the logo dialog offers.
QString LogoFileFilter();

} // namespace tb
