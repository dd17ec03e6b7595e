// Every way a save can fail leaves the earlier file byte for byte, reports the
// failure with its cause, and (from the command line) exits non-zero. Faults come
// from fault_shim.c: linked into this program for the saves made in process, and
// preloaded into the command-line tool for the files it writes.

#include "TestSupport.h"

#include "document/AtomicWrite.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "reports/CallSheetFile.h"

#include <QProcess>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>

extern "C" void tbfault_reset(void);

using namespace tb;
using namespace tb::test;

namespace {

struct Fault
{
    const char *op;
    int error;
    qint64 after;
};

// The fault matrix: nothing written, a full disk part-way, an I/O error part-way,
// short writes running into a full disk, a failed flush to the disk, a failed close,
// a failed rename.
const QList<std::pair<const char *, Fault>> Faults = {
    {"no space at once", {"write", ENOSPC, 0}},  {"no space part-way", {"write", ENOSPC, 300}},
    {"i/o error part-way", {"write", EIO, 250}}, {"short writes, then full", {"short", ENOSPC, 400}},
    {"fsync fails", {"fsync", EIO, 0}},          {"close fails", {"close", EIO, 0}},
    {"rename fails", {"rename", EACCES, 0}},
};

const QByteArray Earlier = "the earlier file, which must survive\r\n";

void setFault(const Fault &fault, const QString &match)
{
    tbfault_reset();
    qputenv("TB_FAULT_MATCH", match.toUtf8());
    qputenv("TB_FAULT_ERRNO", QByteArray::number(fault.error));
    qputenv("TB_FAULT_AFTER", QByteArray::number(fault.after));
    qputenv("TB_FAULT_OP", fault.op);
}

void clearFault()
{
    qunsetenv("TB_FAULT_OP");
}

QString cause(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// A fresh folder holding only the earlier file.
QString folderWithEarlierFile(const QString &name, QString *target)
{
    static int serial = 0;
    const QString folder = TempPath(QStringLiteral("faults-%1").arg(++serial));
    QDir().mkpath(folder);
    *target = folder + u'/' + name;
    QFile file(*target);
    if (!file.open(QIODevice::WriteOnly) || file.write(Earlier) != Earlier.size())
        qFatal("cannot prepare %s", qPrintable(*target));
    return folder;
}

void fill(ScheduleDocument &doc, int scenes, int elements)
{
    NewDocument(doc);
    doc.values.PictureTitle = QStringLiteral("Fault matrix");
    for (int i = 1; i <= scenes; ++i)
        AddScene(doc, QString::number(i), QStringLiteral("1 2/8"));
    for (int i = 1; i <= elements; ++i)
        AddElement(doc, QStringLiteral("Element %1 with a longer description").arg(i));
}

} // namespace

class TestSaveFaults : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { clearFault(); }

    void inProcess_data()
    {
        Columns<QString, int, QByteArray, int, qint64>("writer", "scenes", "op", "error", "after");
        const QList<std::pair<const char *, int>> writers = {{"schedule", 3},   {"schedule", 900}, {"autosave", 3},
                                                             {"autosave", 900}, {"settings", 3},   {"call sheet", 3}};
        for (const auto &[faultName, fault] : Faults) {
            for (const auto &[writer, scenes] : writers) {
                QTest::addRow("%s, %s, %d scenes", writer, faultName, scenes)
                    << QString::fromLatin1(writer) << scenes << QByteArray(fault.op) << fault.error << fault.after;
            }
        }
    }
    void inProcess()
    {
        auto [writer, scenes, op, error, after] =
            Fetch<QString, int, QByteArray, int, qint64>("writer", "scenes", "op", "error", "after");

        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        fill(doc, scenes, scenes / 2);
        SetModified(doc);
        QString target;
        const QString folder = folderWithEarlierFile(QStringLiteral("sched.tbf"), &target);

        // A call sheet file is short: its faults come within its first bytes.
        if (writer == QLatin1String("call sheet"))
            after /= 10;
        setFault(Fault{op.constData(), error, after}, folder);
        Result saved = Result::success();
        if (writer == QLatin1String("schedule"))
            saved = SaveDocument(doc, target);
        else if (writer == QLatin1String("autosave"))
            saved = AutosaveCommand(doc, target);
        else if (writer == QLatin1String("call sheet"))
            saved = WriteCallSheetFile(CallSheet(), target);
        else {
            IniFile ini(target);
            ini.load();
            for (int i = 0; i < 400; ++i)
                ini.writeString(QStringLiteral("Strips"), QStringLiteral("Key%1").arg(i), QStringLiteral("clWhite"));
            saved = ini.save();
        }
        clearFault();

        QVERIFY(!saved);
        QCOMPARE(ReadFileBytes(target), Earlier);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("sched.tbf")});
        QVERIFY2(saved.message().contains(cause(error)), qPrintable(saved.message()));
        if (writer == QLatin1String("call sheet")) {
            QVERIFY(saved.message().startsWith(QStringLiteral("Error saving call sheet file\r\r")));
        } else if (writer != QLatin1String("settings")) {
            QVERIFY(saved.message().startsWith(QStringLiteral("Error saving file ") + target +
                                               QStringLiteral(". Try again using SaveAs from the file menu.\r\r")));
            QVERIFY(doc.Modified);
            QCOMPARE(prompter.texts(), QStringList{saved.message()});
        } else {
            QVERIFY(saved.message().startsWith(QStringLiteral("Torvanbridge could not write its settings file")));
        }
    }

    // Without a fault the same writers replace the file and leave nothing beside it.
    void withoutFault()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        fill(doc, 900, 450);
        QString target;
        const QString folder = folderWithEarlierFile(QStringLiteral("sched.tbf"), &target);
        QVERIFY(SaveDocument(doc, target));
        QCOMPARE(ReadFileBytes(target),
                 legacy::EncodeFileText(ScheduleFileLines(doc).join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")));
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("sched.tbf")});
        QVERIFY(!WriteFileAtomically(folder, "x"));
        // Saved through a link, the linked file gets the bytes and the link stays.
        const QString link = QDir(folder).filePath(QStringLiteral("link.tbf"));
        QVERIFY(QFile::link(target, link));
        QVERIFY(WriteFileAtomically(link, "through the link"));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(ReadFileBytes(target), "through the link");
    }

    void commandLine_data()
    {
        Columns<QStringList, QString, QByteArray, int, qint64>("command", "out", "op", "error", "after");
        const QString example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");
        const QList<std::tuple<const char *, QStringList, const char *>> commands = {
            {"resave", {"resave", example, "-o"}, "out.tbf"},
            {"resave large", {"resave", "LARGE", "-o"}, "out.tbf"},
            {"board png", {"board", example, "--width", "800", "--height", "600", "-o"}, "out.png"},
            {"board pdf", {"board", example, "--width", "800", "--height", "600", "-o"}, "out.pdf"},
            {"report pdf", {"report", "schedule", example, "-o"}, "out.pdf"},
            {"export csv", {"export", example, "-o"}, "out.csv"},
        };
        QList<std::pair<const char *, Fault>> faults = Faults;
        faults.append({"killed part-way", {"kill", 0, 2048}});
        for (const auto &[faultName, fault] : faults) {
            const QByteArray name(faultName);
            for (const auto &[label, args, out] : commands) {
                QTest::addRow("%s, %s", label, name.constData())
                    << args << QString::fromLatin1(out) << QByteArray(fault.op) << fault.error << fault.after;
            }
        }
    }
    void commandLine()
    {
        auto [command, out, op, error, after] =
            Fetch<QStringList, QString, QByteArray, int, qint64>("command", "out", "op", "error", "after");

        static QString large;
        if (large.isEmpty()) {
            ScheduleDocument doc;
            fill(doc, 1000, 500);
            large = TempPath(QStringLiteral("large.tbf"));
            QVERIFY(SaveDocument(doc, large));
        }
        command.replaceInStrings(QRegularExpression(QStringLiteral("^LARGE$")), large);

        QString target;
        const QString folder = folderWithEarlierFile(out, &target);
        // The tool takes the fault from the environment it inherits.
        setFault(Fault{op.constData(), error, after}, folder);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        clearFault();
        env.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TB_FAULT_SHIM));
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
        QProcess cli;
        cli.setProcessEnvironment(env);
        cli.start(QStringLiteral(TB_CLI_PATH),
                  QStringList{QStringLiteral("--locale"), QStringLiteral("en_US")} + command + QStringList{target});
        QVERIFY(cli.waitForFinished(60000));
        const QString err = QString::fromLocal8Bit(cli.readAllStandardError());

        QCOMPARE(ReadFileBytes(target), Earlier);
        if (op == "kill") {
            QCOMPARE(cli.exitStatus(), QProcess::CrashExit);
            return; // a stray temporary file may stay beside the target; the target is whole
        }
        QCOMPARE(cli.exitStatus(), QProcess::NormalExit);
        QCOMPARE(cli.exitCode(), 1);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{out});
        QVERIFY2(err.contains(cause(error)), qPrintable(err));
        if (out.endsWith(QLatin1String(".tbf")))
            QVERIFY2(err.startsWith(QStringLiteral("Error saving file ") + target), qPrintable(err));
    }
};

TB_TEST_GUILESS_MAIN(TestSaveFaults)
#include "tst_savefaults.moc"
