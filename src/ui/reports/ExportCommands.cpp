#include "ui/reports/ExportCommands.h"

#include "board/BoardStyle.h"
#include "document/ScheduleDocument.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace tb {

namespace {

// The colours the export uses: the board's, as the preferences set them.
BoardStyle exportStyle(CommandHost &host)
{
    return StyleFromSettings(host.settings());
}

QString extensionOf(BoardExportFormat format)
{
    return format == BoardExportFormat::Html ? QStringLiteral("html") : QStringLiteral("csv");
}

} // namespace

BoardExporter::BoardExporter(CommandHost &host)
    : QObject(host.window())
    , m_host(host)
{
    setObjectName(QStringLiteral("BoardExporter"));
    chooseFile = [this](BoardExportFormat format, const QString &suggested) {
        const bool html = format == BoardExportFormat::Html;
        return QFileDialog::getSaveFileName(
            m_host.window(),
            html ? QStringLiteral("Export board as HTML") : QStringLiteral("Export board as spreadsheet"), suggested,
            html ? QStringLiteral("Web page (*.html *.htm)") : QStringLiteral("Spreadsheet, comma-separated (*.csv)"));
    };
}

void BoardExporter::exportAs(BoardExportFormat format)
{
    ScheduleDocument &doc = m_host.document();
    // Beside the schedule and named after it, or in the home folder for an untitled one.
    const QFileInfo schedule(doc.FileName);
    const QString suggested = doc.FileName.isEmpty()
                                  ? QDir::home().filePath(QStringLiteral("board.") + extensionOf(format))
                                  : schedule.dir().filePath(schedule.completeBaseName() + u'.' + extensionOf(format));
    QString path = chooseFile(format, suggested);
    if (path.isEmpty())
        return;
    if (BoardExportFormatOf(path) != format)
        path += u'.' + extensionOf(format);
    const Result written = ExportBoard(doc, exportStyle(m_host), format, path);
    if (!written) {
        doc.prompter().error(written.message());
        return;
    }
    doc.status().setPanelText(StatusSink::MessagePanel, QStringLiteral("Exported to ") + QFileInfo(path).fileName());
}

MenuTable ExportMenuEntries(CommandHost &host)
{
    auto *exporter = new BoardExporter(host);
    // The earlier edition showed these two entries without a command behind them; here
    // they export the board (see the help page of differences).
    return {
        {.name = actions::AsSpreadsheet1,
         .caption = "As &Spreadsheet...",
         .handler = [exporter] { exporter->exportAs(BoardExportFormat::Spreadsheet); }},
        {.name = actions::AsHTML1,
         .caption = "As &HTML...",
         .handler = [exporter] { exporter->exportAs(BoardExportFormat::Html); }},
    };
}

} // namespace tb
