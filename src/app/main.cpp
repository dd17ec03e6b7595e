// torvanbridge: the desktop program.

#include "document/DocumentSummary.h"
#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"
#include "widgets/MessageBoxPrompter.h"

#include <QApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvanbridge"));
    QApplication::setOrganizationName(QStringLiteral("Brenholt"));
    QApplication::setApplicationVersion(QStringLiteral(TB_VERSION));

    tb::ScheduleDocument doc;
    tb::MessageBoxPrompter prompter;
    doc.setPrompter(&prompter);
    const QStringList args = app.arguments();
    if (args.size() > 1)
        (void)tb::OpenDocument(doc, args.at(1));
    QTextStream(stdout) << tb::DocumentSummary(doc) << Qt::flush;
    return 0;
}
