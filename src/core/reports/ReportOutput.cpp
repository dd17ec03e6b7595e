#include "reports/ReportOutput.h"

#include "document/AtomicWrite.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QStandardPaths>

namespace tb {

QString UserTemplateFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Torvanbridge/templates");
}

QStringList TemplateFolders()
{
    QStringList folders;
    // The user's own templates come first: changed copies there survive a reinstall.
    folders.append(UserTemplateFolder());
    const QString programFolder = QCoreApplication::applicationDirPath();
    folders.append(programFolder);
    folders.append(QDir::cleanPath(programFolder + QStringLiteral("/../share/torvanbridge/templates")));
#ifdef TB_TEMPLATE_INSTALL_DIR
    const QString installed = QDir::cleanPath(QStringLiteral(TB_TEMPLATE_INSTALL_DIR));
    if (!folders.contains(installed))
        folders.append(installed);
#endif
    return folders;
}

QString TemplatePath(const QString &fileName)
{
    const QStringList folders = TemplateFolders();
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(fileName);
        if (QFileInfo(path).isFile())
            return path;
    }
    return QDir(QCoreApplication::applicationDirPath()).filePath(fileName);
}

QPageSize PageSizeFor(tPapersize paper)
{
    switch (paper) {
    case tPapersize::alr_A4:
        return QPageSize(QPageSize::A4);
    case tPapersize::alr_A5:
        return QPageSize(QPageSize::A5);
    case tPapersize::alr_Legal:
        return QPageSize(QPageSize::Legal);
    case tPapersize::alr_Letter:
        return QPageSize(QPageSize::Letter);
    }
    return QPageSize(QPageSize::A4);
}

namespace {

QString xmlText(QString text)
{
    return text.toHtmlEscaped();
}

// The document's description for readers that show an author: the writer's own title and
// creator, and the company as the author.
QByteArray XmpMetadata(const QString &title, const QString &author)
{
    const QString xmp =
        QStringLiteral("<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
                       "<x:xmpmeta xmlns:x='adobe:ns:meta/'>\n"
                       "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>\n"
                       "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' "
                       "xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmlns:pdf='http://ns.adobe.com/pdf/1.3/'>\n"
                       "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>%1</rdf:li></rdf:Alt></dc:title>\n"
                       "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>\n"
                       "<xmp:CreatorTool>Torvanbridge</xmp:CreatorTool>\n"
                       "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end='w'?>");
    return xmp.arg(xmlText(title), xmlText(author)).toUtf8();
}

} // namespace

Result WriteReportPdf(TAlReport &report, const QString &path, std::optional<tPapersize> paper)
{
    const tPapersize chosen = paper.value_or(report.Papersize);
    // The whole PDF is made in memory and written in one checked step: a failed layout
    // or a failed write leaves no file, or the earlier one untouched.
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    Result printed = Result::success();
    {
        QPdfWriter writer(&file);
        writer.setResolution(LayoutDpi);
        writer.setCreator(QStringLiteral("Torvanbridge"));
        const QString title = report.documentTitle.isEmpty() ? report.ReportTitle : report.documentTitle;
        writer.setTitle(title);
        if (!report.documentAuthor.isEmpty())
            writer.setDocumentXmpMetadata(XmpMetadata(title, report.documentAuthor));
        const QPageLayout::Orientation orientation =
            report.Orientation == TPrinterOrientation::poLandscape ? QPageLayout::Landscape : QPageLayout::Portrait;
        // The sheet is the standard size; the engine fills the whole millimetres of its
        // own table (Letter and Legal are a fraction wider and longer), so what lies
        // beyond them is left as margin at the right and the bottom.
        const QPageSize size = PageSizeFor(chosen);
        QSizeF sheet = size.size(QPageSize::Millimeter);
        QSizeF used = PaperSizeMM(chosen);
        if (orientation == QPageLayout::Landscape) {
            sheet.transpose();
            used.transpose();
        }
        const QMarginsF margins(0, 0, qMax(0.0, sheet.width() - used.width()),
                                qMax(0.0, sheet.height() - used.height()));
        writer.setPageLayout(QPageLayout(size, orientation, margins, QPageLayout::Millimeter, QMarginsF()));
        printed = report.Print(writer);
    }
    if (!printed)
        return printed;
    file.close();
    const Result written = WriteFileAtomically(path, file.data());
    if (!written)
        return Result::failure(QStringLiteral("Could not write %1: %2").arg(path, written.message()));
    return Result::success();
}

} // namespace tb
