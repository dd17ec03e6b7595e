#include "import/ImportedStrips.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

namespace tb {

void ImportedStrips::begin(ScheduleDocument &doc)
{
    doc.status().setProgress(0);
    NewDocument(doc);
    doc.values.NextStripId = 0;
}

bool ImportedStrips::addScene(const ImportedScene &scene)
{
    if (m_next > MaxStrips)
        return false;
    StripRecord &row = m_doc.strips[m_next];
    row.clear();
    row.set(StripField::DayNight, scene.dayNight);
    row.set(StripField::IntExt, scene.intExt);
    row.set(StripField::ScriptPage, scene.scriptPage);
    row.set(StripField::StripKind, StripKinds::Scene);
    row.set(StripField::StripId, QString::number(++m_doc.values.NextStripId));
    row.set(StripField::Synopsis, scene.synopsis);
    // The heading's line in the script, kept with the strip.
    row.set(StripField::Reserved8, QString::number(scene.headingLine));
    row.set(StripField::SceneNumber, scene.sceneNumber);
    row.set(StripField::Location, scene.location);
    m_doc.locationPickList.append(scene.location);

    ++m_next;
    m_doc.status().setPanelText(StatusSink::MessagePanel, QStringLiteral("Import progress : ") +
                                                              QString::number(m_next) + QStringLiteral(" - ") +
                                                              scene.location);
    return true;
}

void ImportedStrips::setLength(int strip, double pages)
{
    m_doc.strips[strip].set(StripField::PageLength, legacy::FloatToText(pages));
}

int ImportedStrips::castElement(const QString &name)
{
    const QString folded = name.toCaseFolded();
    if (const int row = m_byFoldedName.value(folded, 0))
        return row;
    ElementRecord element;
    element.set(ElementField::Description, name);
    element.set(ElementField::CategoryNumber, QStringLiteral("1"));
    element.set(ElementField::PrintOnBoard, QStringLiteral("1"));
    element.set(ElementField::HoldRule, QString());
    element.set(ElementField::PersonName, QString());
    element.set(ElementField::BoardId, QString::number(m_doc.elements.count() + 1));
    if (!m_doc.elements.append(element))
        return 0;
    const int row = m_doc.elements.count();
    m_byFoldedName.insert(folded, row);
    m_byName.insert(name, row);
    return row;
}

void ImportedStrips::finish()
{
    m_doc.strips.setCount(m_next - 1);
}

void EndScriptImport(ScheduleDocument &doc, bool ok)
{
    // An import takes no undo snapshot; after a good one the board shows the first strip.
    DocumentChange change;
    if (ok)
        change.firstStrip = 1;
    SetModified(doc, change);
}

} // namespace tb
