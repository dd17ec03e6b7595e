#include "reports/ReportBuilders.h"

#include "reports/ReportOutput.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QFileInfo>
#include <QImageReader>

namespace tb {

QImage LoadLogo(const ScheduleDocument &doc)
{
    const QString path = doc.values.LogoFile.trimmed();
    if (path.isEmpty())
        return QImage();
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage image = reader.read(); // null when the file is gone or no picture: the reports print without it
    // The reports keep a lossless picture lossless; they need to know which it was.
    if (!image.isNull())
        image.setText(QStringLiteral("format"), QString::fromLatin1(reader.format()));
    return image;
}

namespace reportdetail {

ResultOf<std::unique_ptr<ReportForm>> LoadBuilderTemplate(ScheduleDocument &doc, const char *fileName,
                                                          const ReportBuildContext &context,
                                                          const std::function<QString(const QString &path)> &message)
{
    const QString path =
        context.templatePath.isEmpty() ? TemplatePath(QString::fromLatin1(fileName)) : context.templatePath;
    ResultOf<std::unique_ptr<ReportForm>> loaded = LoadTemplate(path, context.trace);
    if (!loaded) {
        QString text = message(path);
        // A template that is there but does not load: where and why, so that whoever
        // changed it can mend it.
        if (QFileInfo(path).isFile())
            text += QStringLiteral("\r\r") + loaded.message();
        doc.prompter().error(text);
        return Result::failure(text);
    }
    TAlReport &report = *loaded.value()->report;
    report.DebugTrace = bool(context.trace);
    report.OnTrace = context.trace;
    return loaded;
}

BuilderRun::BuilderRun(ScheduleDocument &doc, const ReportBuildContext &context, const QString &progressText,
                       int maximum)
    : m_doc(doc)
    , m_context(context)
{
    doc.status().setBusy(true);
    m_logo = LoadLogo(doc);
    if (PrintingProgress *progress = context.progress) {
        progress->setText(progressText);
        progress->setMaximum(maximum);
        progress->setPosition(0);
        progress->showProgress();
    }
}

BuilderRun::~BuilderRun()
{
    finish();
}

ResultOf<BuiltReport> BuilderRun::load(const char *fileName, const std::function<QString(const QString &path)> &message)
{
    ResultOf<std::unique_ptr<ReportForm>> loaded = LoadBuilderTemplate(m_doc, fileName, m_context, message);
    if (!loaded) {
        finish();
        return Result::failure(loaded.message());
    }
    BuiltReport built;
    built.form = std::move(loaded.value());
    TAlReport &report = built.report();
    report.SetPicture(m_logo);
    // A PDF file of the report is titled with the production and the report, by the company.
    const QString title = m_doc.values.PictureTitle.trimmed();
    report.documentTitle = title.isEmpty() ? report.ReportTitle : title + QStringLiteral(" - ") + report.ReportTitle;
    report.documentAuthor = m_doc.values.Company.trimmed();
    return built;
}

void BuilderRun::step(int position)
{
    if (PrintingProgress *progress = m_context.progress) {
        progress->setPosition(position);
        progress->keepAlive();
    }
}

void BuilderRun::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    if (m_context.progress)
        m_context.progress->hideProgress();
    m_doc.status().setBusy(false);
}

QString LinesText(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines)
        text += line + QStringLiteral("\r\n");
    return text;
}

ResultOf<int> FieldNumber(const QString &text)
{
    bool ok = false;
    const int value = legacy::StrToInt(text, &ok);
    if (!ok)
        return Result::failure(QStringLiteral("'%1' is not a valid integer value").arg(text));
    return value;
}

} // namespace reportdetail

} // namespace tb
