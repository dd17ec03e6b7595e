// Building schedules from screenplays: plain text and Final Draft's two reports.

#include "CliCommand.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "import/FinalDraftImport.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

namespace tb::cli {

namespace {

// "DAY,MORNING, LATE AFTERNOON" -> three words, each trimmed; empty items dropped.
QStringList WordList(const QString &text)
{
    QStringList words;
    for (const QString &item : text.split(u',')) {
        const QString word = TrimImportLine(item);
        if (!word.isEmpty())
            words.append(word);
    }
    return words;
}

void PrintImported(CliContext &ctx, const ScheduleDocument &doc, const QString &out)
{
    ctx.out << "Imported " << doc.strips.count() << " scenes and " << doc.elements.count() << " cast elements into "
            << out << Qt::endl;
}

int runImportText(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--lines"))
        .valueOption(QStringLiteral("--day-words"))
        .valueOption(QStringLiteral("--night-words"))
        .valueOption(QStringLiteral("--ignore-words"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected a script file and -o OUT"));

    ScriptImportSettings settings;
    if (parser.has(QStringLiteral("--lines"))) {
        bool ok = false;
        settings.linesPerPage = parser.value(QStringLiteral("--lines")).toInt(&ok);
        if (!ok || settings.linesPerPage < 1 || settings.linesPerPage > 99)
            return UsageError(ctx, self, QStringLiteral("--lines must be a number from 1 to 99"));
    }
    if (parser.has(QStringLiteral("--day-words")))
        settings.dayWords = WordList(parser.value(QStringLiteral("--day-words")));
    if (parser.has(QStringLiteral("--night-words")))
        settings.nightWords = WordList(parser.value(QStringLiteral("--night-words")));
    if (parser.has(QStringLiteral("--ignore-words")))
        settings.ignoreWords = WordList(parser.value(QStringLiteral("--ignore-words")));

    // A script that cannot be read leaves nothing to write.
    const ResultOf<QStringList> lines = ReadScriptFile(parser.positional().first());
    if (!lines) {
        ctx.prompter.error(lines.message());
        return ExitUserError;
    }

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    const QString out = parser.value(QStringLiteral("-o"));
    const Result imported = DoImport(doc, *lines, settings);
    // A failed import writes nothing: the file named by -o, if any, stays as it was.
    if (!imported)
        return ExitUserError;
    if (!SaveDocument(doc, out))
        return ExitUserError;
    PrintImported(ctx, doc, out);
    return ExitOk;
}

int runImportFinalDraft(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 2 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected a scene report, a script report and -o OUT"));
    const QString sceneReport = parser.positional().at(0);
    const QString scriptReport = parser.positional().at(1);

    // Reports that cannot be read at all leave nothing to write.
    for (const QString &path : {scriptReport, sceneReport}) {
        const ResultOf<QStringList> text = ReadImportText(path);
        if (!text) {
            ctx.prompter.error(QString::fromLatin1(FinalDraftReadErrorText));
            ctx.err << path << ": " << text.message() << Qt::endl;
            return ExitUserError;
        }
    }

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    NewDocument(doc);
    const int errorsBefore = ctx.prompter.errorCount;
    const Result imported = ImportFinalDraft(doc, sceneReport, scriptReport);
    const QString out = parser.value(QStringLiteral("-o"));
    // A failed import writes nothing. The lengths messages do not stop the import, but
    // the result is not what the reports hold: no file either, and exit 1 as for any
    // error shown.
    if (!imported || ctx.prompter.errorCount > errorsBefore)
        return ExitUserError;
    if (!SaveDocument(doc, out))
        return ExitUserError;
    PrintImported(ctx, doc, out);
    return ExitOk;
}

} // namespace

void AddImportCommands(CommandList &commands)
{
    CliCommand text{QStringLiteral("import-text"),
                    QStringLiteral("import-text SCRIPT -o OUT [--lines N] [--day-words W,...] [--night-words W,...] "
                                   "[--ignore-words W,...]"),
                    QStringLiteral("Build a new schedule from a screenplay in formatted plain text (55 lines a page "
                                   "and the wizard's word lists unless given)."),
                    {}};
    text.run = [text](CliContext &ctx, const QStringList &args) { return runImportText(ctx, text, args); };
    commands.append(text);

    CliCommand fd{QStringLiteral("import-fd"),
                  QStringLiteral("import-fd SCENE_REPORT SCRIPT_REPORT -o OUT"),
                  QStringLiteral("Build a new schedule from Final Draft's Scene Report and Script Report (text)."),
                  {}};
    fd.run = [fd](CliContext &ctx, const QStringList &args) { return runImportFinalDraft(ctx, fd, args); };
    commands.append(fd);
}

} // namespace tb::cli
