// Every file of the malformed-input corpus (tests/malformed, listed with the expected
// outcome in tests/malformed/expected.txt) gives its message and exit code, never a
// crash or a hang, and a command that fails writes no output file.

#include "TestSupport.h"

#include "document/Settings.h"
#include "reports/AlLayout.h"
#include "reports/AlReport.h"

using namespace tb;
using namespace tb::test;

namespace {

const QString Corpus = QStringLiteral(TB_SOURCE_DIR "/tests/malformed/");

struct Outcome
{
    int code = -1;
    QString text;
};

// Templates and settings are read in process, as the program reads them.
Outcome readTemplate(const QString &path)
{
    ResultOf<std::unique_ptr<ReportForm>> form = LoadTemplate(path);
    if (!form)
        return {1, form.message()};
    (void)LayOutReport(*form.value()->report, LayoutPage{2480, 3508});
    return {0, QString()};
}

Outcome readSettings(const QString &path)
{
    Settings settings(path);
    const QStringList problems = settings.LoadSettings();
    return {0, QStringLiteral("Autosavetime=%1\n").arg(settings.autosaveMinutes) + problems.join(u'\n')};
}

// The command-line tool on the file; a failed command must leave no output behind.
Outcome runCommand(const QStringList &args, const QString &out)
{
    QFile::remove(out);
    const CliRun run = RunCli(args + QStringList{QStringLiteral("-o"), out});
    if (run.code != 0 && QFileInfo::exists(out))
        return {-2, QStringLiteral("a failed command wrote %1").arg(out)};
    return {run.code, run.out + run.err};
}

} // namespace

class TestMalformed : public QObject
{
    Q_OBJECT

private slots:
    void corpus_data()
    {
        Columns<QString, int, QString>("file", "code", "text");
        QFile list(Corpus + QStringLiteral("expected.txt"));
        QVERIFY(list.open(QIODevice::ReadOnly | QIODevice::Text));
        int rows = 0;
        while (!list.atEnd()) {
            const QString line = QString::fromUtf8(list.readLine()).chopped(1);
            if (line.startsWith(u'#') || line.isEmpty())
                continue;
            const QStringList parts = line.split(u'\t');
            QCOMPARE(parts.size(), 3);
            QString text = parts[2];
            text.replace(QLatin1String("\\r"), QLatin1String("\r")).replace(QLatin1String("\\n"), QLatin1String("\n"));
            Row(qPrintable(parts[0]), parts[0], parts[1].toInt(), text);
            ++rows;
        }
        QVERIFY(rows >= 50);
    }
    void corpus()
    {
        auto [file, code, text] = Fetch<QString, int, QString>("file", "code", "text");
        const QString path = Corpus + file;
        const QString out = TempPath(QStringLiteral("malformed-out"));
        const QString format = file.section(u'/', 0, 0);
        const QString data = QStringLiteral(TB_IMPORT_DATA "/");
        Outcome outcome;
        if (format == QLatin1String("schedule")) {
            const CliRun info = RunCli({QStringLiteral("info"), path});
            outcome = {info.code, info.out + info.err};
            const Outcome resaved = runCommand({QStringLiteral("resave"), path}, out + QStringLiteral(".tbf"));
            QCOMPARE(resaved.code, outcome.code);
        } else if (format == QLatin1String("script")) {
            outcome = runCommand({QStringLiteral("import-text"), path}, out + QStringLiteral(".tbf"));
        } else if (format == QLatin1String("finaldraft")) {
            const bool sceneReport = QFileInfo(file).fileName().startsWith(QLatin1String("scene-"));
            outcome = runCommand({QStringLiteral("import-fd"),
                                  sceneReport ? path : data + QStringLiteral("fd-scene-report.txt"),
                                  sceneReport ? data + QStringLiteral("fd-script-report.txt") : path},
                                 out + QStringLiteral(".tbf"));
        } else if (format == QLatin1String("template")) {
            outcome = readTemplate(path);
        } else {
            outcome = readSettings(path);
        }
        QVERIFY2(outcome.text.contains(text), qPrintable(outcome.text.left(2000)));
        QCOMPARE(outcome.code, code);
    }
};

TB_TEST_MAIN(TestMalformed)
#include "tst_malformed.moc"
