#pragma once

#include "board/BoardExport.h"
#include "ui/shell/MenuEntry.h"

#include <QObject>
#include <QString>

#include <functional>

namespace tb {

class CommandHost;

// File > "&Export board" > "As &Spreadsheet..." and "As &HTML...": a save dialog, then
// the board written in that format with the board's colours from the preferences.
class BoardExporter : public QObject
{
    Q_OBJECT

public:
    explicit BoardExporter(CommandHost &host);

    // Asks for the file to write; empty when the user cancels. A dialog by default;
    // tests put their own answer here.
    std::function<QString(BoardExportFormat format, const QString &suggested)> chooseFile;

    void exportAs(BoardExportFormat format);

private:
    CommandHost &m_host;
};

// The two entries, served by a BoardExporter made now and kept by the main window.
MenuTable ExportMenuEntries(CommandHost &host);

} // namespace tb
