#include "breakdown/ProductionDetails.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QImageReader>

namespace tb {

ProductionDetails ReadProductionDetails(const ScheduleDocument &doc)
{
    const ProductionValues &v = doc.values;
    ProductionDetails d;
    d.title = v.PictureTitle;
    d.company = v.Company;
    d.address = legacy::SplitCommaText(v.CompanyAddress);
    d.producer = v.Producer;
    d.director = v.Director;
    d.firstAD = v.FirstAD;
    d.productionManager = v.ProductionManager;
    d.script = v.ScriptTitle;
    d.reference = v.Reference;
    d.preparedBy = v.PreparedBy;
    d.unitCall = v.UnitCall;
    d.costumeCall = v.CostumeCall;
    d.makeupCall = v.MakeupCall;
    d.wrapTime = v.WrapTime;
    d.logoFile = v.LogoFile;
    d.crew.resize(CrewRowCount);
    for (int r = 1; r <= CrewRowCount && r < doc.crew.size(); ++r) {
        const CrewRow &row = doc.crew.at(r);
        d.crew[r - 1] = {row[CrewField::Position], row[CrewField::Name], row[CrewField::Contact]};
    }
    return d;
}

void WriteProductionDetails(ScheduleDocument &doc, const ProductionDetails &d)
{
    ProductionValues &v = doc.values;
    v.PictureTitle = d.title;
    v.Company = d.company;
    v.CompanyAddress = legacy::JoinCommaText(d.address);
    v.Producer = d.producer;
    v.Director = d.director;
    v.FirstAD = d.firstAD;
    v.ProductionManager = d.productionManager;
    v.ScriptTitle = d.script;
    v.Reference = d.reference;
    v.PreparedBy = d.preparedBy;
    v.UnitCall = d.unitCall;
    v.CostumeCall = d.costumeCall;
    v.MakeupCall = d.makeupCall;
    v.WrapTime = d.wrapTime;
    v.LogoFile = d.logoFile;
    for (int r = 1; r <= CrewRowCount && r < doc.crew.size(); ++r) {
        const CrewLine line = r - 1 < d.crew.size() ? d.crew.at(r - 1) : CrewLine();
        CrewRow &row = doc.crew[r];
        row.set(CrewField::Position, line[0]);
        row.set(CrewField::Name, line[1]);
        row.set(CrewField::Contact, line[2]);
    }
    doc.view().setTitle(UpdateTitle(doc));
    SetModified(doc);
}

QString ProductionDetailsProblem(const ProductionDetails &d)
{
    if (d.crew.size() > CrewRowCount)
        return QStringLiteral("The crew list has room for %1 lines, not %2.").arg(CrewRowCount).arg(d.crew.size());
    const auto oneLine = [](const QString &text) { return !text.contains(u'\n') && !text.contains(u'\r'); };
    const std::pair<const char *, const QString *> values[] = {
        {"Picture title", &d.title},
        {"Company", &d.company},
        {"Producer", &d.producer},
        {"Director", &d.director},
        {"1st AD", &d.firstAD},
        {"PM", &d.productionManager},
        {"Script", &d.script},
        {"Reference", &d.reference},
        {"Prepared by", &d.preparedBy},
        {"Unit call", &d.unitCall},
        {"Costume call", &d.costumeCall},
        {"Makeup call", &d.makeupCall},
        {"Wrap time", &d.wrapTime},
        {"Logo", &d.logoFile},
    };
    for (const auto &[name, value] : values) {
        if (!oneLine(*value))
            return QStringLiteral("%1 must be one line.").arg(QLatin1String(name));
    }
    for (const QString &line : d.address) {
        if (!oneLine(line))
            return QStringLiteral("Each address line must be one line.");
    }
    for (const CrewLine &line : d.crew) {
        for (const QString &cell : line) {
            if (!oneLine(cell))
                return QStringLiteral("Each crew position, name and contact must be one line.");
        }
    }
    return {};
}

QImage LoadLogo(ScheduleDocument &doc, const QString &path, LogoSource source)
{
    QImageReader reader(path);
    // Some pictures (a JPEG from a camera) say how they are turned.
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull()) {
        doc.prompter().error(source == LogoSource::Stored
                                 ? QStringLiteral("Error opening logo image file. The link to the file might have been "
                                                  "broken - try re-loading it.")
                                 : QStringLiteral("Error opening logo image file. Make sure this is a valid graphic "
                                                  "file."));
    }
    return image;
}

QString LogoFileFilter()
{
    QStringList patterns;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    patterns.removeDuplicates();
    return QStringLiteral("All pictures (") + patterns.join(u' ') + QStringLiteral(");;All files (*)");
}

} // namespace tb
