#pragma once

#include "document/ScheduleDocument.h"

#include <QHash>
#include <QString>

namespace tb {

// One scene as an importer found it, ready to become a scene strip.
struct ImportedScene
{
    QString sceneNumber;
    QString intExt = QStringLiteral("?");   // "I", "E", "I/E" or "?"
    QString dayNight = QStringLiteral("?"); // "D", "N" or "?"
    QString location;
    QString synopsis;
    QString scriptPage = QStringLiteral("0");
    int headingLine = 0; // where the heading stands in the file, kept with the strip
};

// Builds the strips and cast elements of an imported script, the same way for every
// kind of script file: the plain-text wizard, Fountain and Final Draft (.fdx) files.
//
// begin() empties the document (NewDocument) and restarts the sheet counter; each
// addScene() writes the next scene strip (kind "1", the next StripId, the heading's
// line in Reserved8), puts its location on the scene editor's list and shows
// "Import progress : N - LOCATION"; castElement() gives the row of the cast element
// of a name, making it at the end of the table when no element has that name in any
// letter case (board id = its row, printed on the board); finish() sets the strip
// count. The strip count stays as it was until finish(), so a failed import leaves
// the scenes it had read uncounted and the elements it had made in place.
class ImportedStrips
{
public:
    explicit ImportedStrips(ScheduleDocument &doc)
        : m_doc(doc)
    {}

    static void begin(ScheduleDocument &doc);

    // A scene past the strip table's capacity is left out and counted; the import
    // goes on, and finish() tells the user what was left out. (The earlier edition
    // gave up with its import error and kept no scene.)
    bool addScene(const ImportedScene &scene);
    int scenesLeftOut() const { return m_scenesLeftOut; }
    // The row of the scene added last; 0 before the first.
    int lastScene() const { return m_next - 1; }
    void setLength(int strip, double pages);

    // -1 when the name is left out: the element table is full (the name is counted),
    // or its scene was left out. 0 is never returned; importers treat it as failure.
    int castElement(const QString &name);
    // The element whose name equals this one exactly; 0 when there is none.
    int exactElement(const QString &name) const { return m_byName.value(name, 0); }

    void finish();

private:
    ScheduleDocument &m_doc;
    int m_next = 1; // the row the next scene fills
    int m_scenesLeftOut = 0;
    int m_castLeftOut = 0;
    QHash<QString, int> m_byFoldedName;
    QHash<QString, int> m_byName;
};

// The last steps of every script import, successful or not: the document is marked
// modified and the board shows the new strips from the first one.
void EndScriptImport(ScheduleDocument &doc, bool ok);

} // namespace tb
