// Building schedules from screenplays: plain text and Final Draft's two reports.

#include "CliCommand.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "import/CharacterReview.h"
#include "import/FdxImport.h"
#include "import/FinalDraftImport.h"
#include "import/FountainImport.h"
#include "import/ImportSummary.h"
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

// The first line as it has always been, then the import summary.
void PrintImported(CliContext &ctx, const ScheduleDocument &doc, const QString &out, const QStringList &dropped = {})
{
    ctx.out << "Imported " << doc.strips.count() << " scenes and " << doc.elements.count() << " cast elements into "
            << out << Qt::endl;
    QString summary = SummarizeImport(doc, dropped).text();
    summary.replace(u'\r', u'\n');
    ctx.out << summary << Qt::endl;
}

// "--day-words" and the other word lists of the text import.
void ReadWordOptions(const ArgParser &parser, ScriptImportSettings &settings)
{
    if (parser.has(QStringLiteral("--day-words")))
        settings.dayWords = WordList(parser.value(QStringLiteral("--day-words")));
    if (parser.has(QStringLiteral("--night-words")))
        settings.nightWords = WordList(parser.value(QStringLiteral("--night-words")));
    if (parser.has(QStringLiteral("--ignore-words")))
        settings.ignoreWords = WordList(parser.value(QStringLiteral("--ignore-words")));
}

int runImportText(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--lines"))
        .valueOption(QStringLiteral("--day-words"))
        .valueOption(QStringLiteral("--night-words"))
        .valueOption(QStringLiteral("--ignore-words"))
        .valueOption(QStringLiteral("--review"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected a script file and -o OUT"));
    // "keep" (the default) keeps every name the import takes as a character; "auto"
    // makes the wizard's review choice: names that look like mistakes are removed.
    const QString review = parser.value(QStringLiteral("--review"), QStringLiteral("keep"));
    if (review != QLatin1String("keep") && review != QLatin1String("auto"))
        return UsageError(ctx, self, QStringLiteral("--review must be keep or auto"));

    ScriptImportSettings settings;
    if (parser.has(QStringLiteral("--lines"))) {
        bool ok = false;
        settings.linesPerPage = parser.value(QStringLiteral("--lines")).toInt(&ok);
        if (!ok || settings.linesPerPage < 1 || settings.linesPerPage > 99)
            return UsageError(ctx, self, QStringLiteral("--lines must be a number from 1 to 99"));
    }
    ReadWordOptions(parser, settings);

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
    const QStringList dropped = review == QLatin1String("auto") ? RemoveDoubtfulCharacters(doc) : QStringList();
    if (!SaveDocument(doc, out))
        return ExitUserError;
    PrintImported(ctx, doc, out, dropped);
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

// import-fountain and import-fdx: a screenplay file to a new schedule.
int runImportScreenplay(CliContext &ctx, const CliCommand &self, const QStringList &args, bool fdx)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--day-words"))
        .valueOption(QStringLiteral("--night-words"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected a script file and -o OUT"));
    ScriptImportSettings settings;
    ReadWordOptions(parser, settings);
    const QString path = parser.positional().first();

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    Result imported = Result::success();
    if (fdx) {
        imported = ImportFdxFile(doc, path, settings);
    } else {
        const ResultOf<QStringList> lines = ReadScriptFile(path);
        if (!lines) {
            ctx.prompter.error(lines.message());
            return ExitUserError;
        }
        imported = ImportFountain(doc, *lines, settings);
    }
    // A failed import has been reported and writes nothing: the file named by -o, if
    // any, stays as it was.
    if (!imported)
        return ExitUserError;
    const QString out = parser.value(QStringLiteral("-o"));
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
                                   "[--ignore-words W,...] [--review keep|auto]"),
                    QStringLiteral("Build a new schedule from a screenplay in formatted plain text (55 lines a page "
                                   "and the wizard's word lists unless given; --review auto removes the names that "
                                   "look like no character, as the wizard's review suggests)."),
                    {}};
    text.run = [text](CliContext &ctx, const QStringList &args) { return runImportText(ctx, text, args); };
    commands.append(text);

    CliCommand fd{QStringLiteral("import-fd"),
                  QStringLiteral("import-fd SCENE_REPORT SCRIPT_REPORT -o OUT"),
                  QStringLiteral("Build a new schedule from Final Draft's Scene Report and Script Report (text)."),
                  {}};
    fd.run = [fd](CliContext &ctx, const QStringList &args) { return runImportFinalDraft(ctx, fd, args); };
    commands.append(fd);

    CliCommand fountain{QStringLiteral("import-fountain"),
                        QStringLiteral("import-fountain FILE -o OUT [--day-words W,...] [--night-words W,...]"),
                        QStringLiteral("Build a new schedule from a Fountain screenplay: the script's scene numbers, "
                                       "one cast element per speaking character, lengths from a standard page."),
                        {}};
    fountain.run = [fountain](CliContext &ctx, const QStringList &args) {
        return runImportScreenplay(ctx, fountain, args, false);
    };
    commands.append(fountain);

    CliCommand fdx{QStringLiteral("import-fdx"),
                   QStringLiteral("import-fdx FILE -o OUT [--day-words W,...] [--night-words W,...]"),
                   QStringLiteral("Build a new schedule from a Final Draft script (.fdx), with its scene numbers, "
                                  "lengths and pages where the file has them."),
                   {}};
    fdx.run = [fdx](CliContext &ctx, const QStringList &args) { return runImportScreenplay(ctx, fdx, args, true); };
    commands.append(fdx);
}

} // namespace tb::cli
