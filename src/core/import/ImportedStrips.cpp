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
    if (m_next > MaxStrips) {
        ++m_scenesLeftOut;
        return true;
    }
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
    if (strip < 1 || strip > lastScene())
        return; // a scene that was left out
    m_doc.strips[strip].set(StripField::PageLength, legacy::FloatToText(pages));
}

int ImportedStrips::castElement(const QString &name)
{
    if (m_scenesLeftOut > 0)
        return -1; // the cast of scenes left out is left out too
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
    if (!m_doc.elements.append(element)) {
        ++m_castLeftOut;
        m_byFoldedName.insert(folded, -1);
        return -1;
    }
    const int row = m_doc.elements.count();
    m_byFoldedName.insert(folded, row);
    m_byName.insert(name, row);
    return row;
}

void ImportedStrips::finish()
{
    m_doc.strips.setCount(m_next - 1);
    QStringList leftOut;
    if (m_scenesLeftOut > 0)
        leftOut.append(QStringLiteral("The schedule can hold at most %1 strips: the first %1 scenes were imported "
                                      "and the last %2 scenes were left out.")
                           .arg(MaxStrips)
                           .arg(m_scenesLeftOut));
    if (m_castLeftOut > 0)
        leftOut.append(QStringLiteral("The schedule can hold at most %1 elements: %2 cast names were left out.")
                           .arg(MaxElements)
                           .arg(m_castLeftOut));
    if (!leftOut.isEmpty())
        m_doc.prompter().warning(leftOut.join(QStringLiteral("\r\r")));
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
