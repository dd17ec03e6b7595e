#include "BenchDocuments.h"

#include "document/DocumentOperations.h"

namespace tb::bench {

void FillToCapacity(ScheduleDocument &doc, bool restDays)
{
    doc.values.PictureTitle = QStringLiteral("Capacity");
    doc.values.Company = QStringLiteral("Brenholt Pictures Ltd");
    doc.values.StartDate = QStringLiteral("46482");
    doc.values.AutoRestDayRule = restDays ? QStringLiteral("D67") : QString();
    doc.values.CompanyAddress = QStringLiteral("\"Unit 4, Wheal Kitty\",\"St Agnes\"");
    for (int j = 1; j <= MaxElements; ++j) {
        ElementRecord e;
        e.set(ElementField::Description, QStringLiteral("ELEMENT NUMBER %1").arg(j));
        e.set(ElementField::CategoryNumber, QString::number(1 + j % 15));
        e.set(ElementField::PrintOnBoard, QStringLiteral("1"));
        e.set(ElementField::BoardId, QString::number(j));
        e.set(ElementField::PersonName, QStringLiteral("Person %1").arg(j));
        e.set(ElementField::HoldRule, QStringLiteral("NONE"));
        e.set(ElementField::OtherInfo, QStringLiteral("\"Line one\",\"Line two, with comma\""));
        (void)doc.elements.append(e);
    }
    for (int i = 1; i <= MaxStrips; ++i) {
        StripRecord s;
        if (i % 6 == 0) {
            s.set(StripField::StripKind, StripKinds::DayDivider);
            s.set(StripField::PageLength, QStringLiteral("0"));
            s.set(StripField::DayCount, QStringLiteral("1"));
            s.set(StripField::StripColour, QStringLiteral("clBlack"));
        } else if (i % 97 == 0) {
            s.set(StripField::StripKind, StripKinds::Banner);
            s.set(StripField::Synopsis, QStringLiteral("TRAVEL DAY"));
            s.set(StripField::DayCount, QStringLiteral("1"));
            s.set(StripField::StripColour, QStringLiteral("clNavy,clWhite"));
        } else {
            s.set(StripField::StripKind, StripKinds::Scene);
            s.set(StripField::SceneNumber, QString::number(i));
            s.set(StripField::DayNight, i % 3 ? QStringLiteral("D") : QStringLiteral("N"));
            s.set(StripField::IntExt, i % 2 ? QStringLiteral("I") : QStringLiteral("E"));
            s.set(StripField::ScriptPage, QString::number(i / 2));
            s.set(StripField::PageLength, QString::number((1 + i % 13) / 8.0));
            s.set(StripField::Synopsis, QStringLiteral("A scene description long enough to be realistic %1").arg(i));
            s.set(StripField::Location, QStringLiteral("LOCATION %1").arg(i % 40));
            s.set(StripField::SetName, QStringLiteral("SET %1").arg(i % 70));
            s.set(StripField::StripId, QString::number(i));
            s.set(StripField::Notes, QStringLiteral("\"Note one\",\"Note two\""));
            QStringList assigned;
            for (int k = 0; k < 8; ++k)
                assigned.append(QString::number(1 + (i * 7 + k * 61) % MaxElements));
            s.set(StripField::Assignments, assigned.join(u','));
        }
        (void)doc.strips.append(s);
    }
    for (int r = 1; r <= CrewRowCount; ++r) {
        doc.crew[r].set(CrewField::Position, QStringLiteral("Position %1").arg(r));
        doc.crew[r].set(CrewField::Name, QStringLiteral("Name %1").arg(r));
        doc.crew[r].set(CrewField::Contact, QStringLiteral("07700 900%1").arg(r, 3, 10, QLatin1Char('0')));
    }
    doc.values.NextStripId = MaxStrips;
    SetModified(doc);
}

} // namespace tb::bench
