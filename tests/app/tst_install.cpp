// The installed program: `cmake --install` into a temporary DESTDIR under /usr,
// then both programs run from there on the installed example, with the files
// the desktop needs checked by its own tools where they are installed (skipped
// otherwise).

#include "TestSupport.h"

#include <QImage>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace tb::test;

namespace {

// Bash's answer to a completion request for the line, run in the folder.
QString complete(const QString &script, const QString &line, const QString &folder)
{
    const QString words = line.endsWith(u' ') ? line + "''" : line;
    const QString command = QStringLiteral("source '%1'; COMP_WORDS=(%2); "
                                           "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                                           "_torvanbridge_cli; printf '%s\\n' \"${COMPREPLY[@]}\" | "
                                           "sort | tr '\\n' ' '")
                                .arg(script, words);
    return RunProgram("bash", {"-c", command}, folder).out.trimmed();
}

} // namespace

class TestInstall : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;
    QString m_usr;
    QString path(const QString &relative) const { return m_usr + u'/' + relative; }
    QString cli() const { return path("bin/torvanbridge-cli"); }
    QString example() const { return path("share/torvanbridge/examples/harbour-lights.tbf"); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        QProcess install;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DESTDIR", m_root.path());
        install.setProcessEnvironment(env);
        install.start(QStringLiteral(TB_CMAKE_COMMAND),
                      {"--install", QStringLiteral(TB_BINARY_DIR), "--prefix", "/usr"});
        QVERIFY(install.waitForFinished(120000));
        QVERIFY2(install.exitCode() == 0, install.readAllStandardError().constData());
        m_usr = m_root.path() + "/usr";
    }

    // The installed files no other test here uses (the validators may be skipped).
    void layout_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file :
             {"share/torvanbridge/templates/CallSheet1.dfm", "share/torvanbridge/help/contents.html",
              "share/torvanbridge/help/differences.html", "share/applications/com.brenholt.Torvanbridge.desktop",
              "share/metainfo/com.brenholt.Torvanbridge.metainfo.xml",
              "share/icons/hicolor/48x48/apps/com.brenholt.Torvanbridge.png",
              "share/icons/hicolor/scalable/apps/com.brenholt.Torvanbridge.svg", "share/doc/torvanbridge/changelog.gz"})
            Row(file, QString::fromLatin1(file));
    }
    void layout()
    {
        QFETCH(QString, file);
        QVERIFY2(QFileInfo(path(file)).isFile(), qPrintable(path(file)));
    }

    // The installed tool finds the installed templates: nothing lies beside it.
    void commandLineToolRunsInstalled()
    {
        QVERIFY(!QFile::exists(path("bin/ShootSch1.dfm")));
        const QString pdf = m_root.filePath("schedule.pdf");
        const CliRun report = RunProgram(cli(), {"report", "schedule", example(), "-o", pdf});
        QVERIFY2(report.code == 0, qPrintable(report.err));
        QVERIFY(ReadFileBytes(pdf).startsWith("%PDF"));
    }

    // The desktop program starts on the example and keeps running without a
    // complaint.
    void desktopProgramRunsInstalled()
    {
        const QString program = path("bin/torvanbridge");
        const CliRun version = RunProgram(program, {"--version"});
        QCOMPARE(version.out.trimmed(), QStringLiteral("torvanbridge " TB_VERSION));
        QVERIFY(RunProgram(program, {"--help"}).out.contains("Usage: torvanbridge [FILE]"));

        QProcess gui;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        gui.setProcessEnvironment(env);
        gui.start(program, {example()});
        QVERIFY(gui.waitForStarted());
        QVERIFY2(!gui.waitForFinished(4000), gui.readAllStandardError().constData());
        const QByteArray complaints = gui.readAllStandardError();
        gui.kill();
        gui.waitForFinished();
        QVERIFY2(complaints.isEmpty(), complaints.constData());
    }

    void manualPages_data()
    {
        Columns<QString, QString>("page", "expected");
        Row("torvanbridge", "torvanbridge", "torvanbridge [FILE]");
        Row("torvanbridge-cli", "torvanbridge-cli", "export IN -o OUT.csv|OUT.html");
    }
    void manualPages()
    {
        auto [page, expected] = Fetch<QString, QString>("page", "expected");
        const QString file = path("share/man/man1/" + page + ".1.gz");
        const CliRun text = RunProgram("gzip", {"-dc", file});
        QVERIFY(text.out.startsWith(".TH " + page.toUpper() + " 1 "));
        if (QStandardPaths::findExecutable("man").isEmpty())
            QSKIP("man is not installed");
        QProcess man;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("MANWIDTH", "200");
        env.remove("MAN_KEEP_FORMATTING");
        env.insert("LC_ALL", "C"); // plain hyphens
        man.setProcessEnvironment(env);
        man.start("man", {"-P", "cat", "-l", file});
        QVERIFY(man.waitForFinished(30000));
        QCOMPARE(man.exitCode(), 0);
        QVERIFY(QString::fromUtf8(man.readAllStandardOutput()).contains(expected));
    }

    void completion_data()
    {
        Columns<QString, QString>("line", "expected");
        Row("commands", "torvanbridge-cli ex", "export");
        Row("after --locale", "torvanbridge-cli --locale C rem", "remove-banners remove-dividers");
        Row("schedules", "torvanbridge-cli info ", "a.tbf sub");
        Row("report kinds", "torvanbridge-cli report s", "schedule");
        Row("report input", "torvanbridge-cli report schedule ", "a.tbf sub");
        Row("output kinds", "torvanbridge-cli export a.tbf -o ", "b.csv sub");
        Row("choices", "torvanbridge-cli export a.tbf --colours ", "classic plain");
        Row("options", "torvanbridge-cli details a.tbf --pr", "--prepared-by --producer");
        Row("screenplay", "torvanbridge-cli import-text ", "script.txt sub");
        Row("any file", "torvanbridge-cli import-fountain ", "a.tbf b.csv c.pdf script.txt sub");
        Row("after an option's value", "torvanbridge-cli board --scale 2 ", "a.tbf sub");
    }
    void completion()
    {
        QFETCH(QString, line);
        if (QStandardPaths::findExecutable("bash").isEmpty())
            QSKIP("bash is not installed");
        QTemporaryDir folder;
        QDir(folder.path()).mkdir("sub");
        for (const char *name : {"a.tbf", "b.csv", "script.txt", "c.pdf"})
            QFile(folder.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly);
        QTEST(complete(path("share/bash-completion/completions/torvanbridge-cli"), line, folder.path()), "expected");
    }

    void fileTypes_data()
    {
        Columns<QString, QByteArray, QString>("name", "content", "type");
        Row("by name", "a.tbf", QByteArray("anything\n"), "application/x-torvanbridge-schedule");
        Row("by content", "renamed.txt",
            QByteArray("Torvanbridge data file. DO NOT EDIT THIS FILE "
                       "DIRECTLY!\r\n1.0\r\n"),
            "application/x-torvanbridge-schedule");
        Row("call sheet", "day1.tbs", QByteArray("Torvanbridge call sheet file V1\r\n"),
            "application/x-torvanbridge-call-sheet");
    }
    void fileTypes()
    {
        auto [name, content, type] = Fetch<QString, QByteArray, QString>("name", "content", "type");
        // The type database reads the folders of XDG_DATA_DIRS once, on first use.
        qputenv("XDG_DATA_DIRS", m_usr.toLocal8Bit() + "/share");
        QTemporaryDir folder;
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QCOMPARE(QMimeDatabase().mimeTypeForFile(file.fileName()).name(), type);
    }

    void validators_data()
    {
        Columns<QString, QStringList>("tool", "args");
        Row("desktop entry", "desktop-file-validate",
            QStringList{path("share/applications/com.brenholt.Torvanbridge.desktop")});
        Row("metainfo", "appstreamcli",
            QStringList{"validate", "--no-net", path("share/metainfo/com.brenholt.Torvanbridge.metainfo.xml")});
    }
    void validators()
    {
        auto [tool, args] = Fetch<QString, QStringList>("tool", "args");
        if (QStandardPaths::findExecutable(tool).isEmpty())
            QSKIP("the validator is not installed");
        const CliRun r = RunProgram(tool, args);
        QVERIFY2(r.code == 0, qPrintable(r.out + r.err));
    }

    // The spreadsheet export opens in LibreOffice: converted back from its own
    // reading, the cells hold what was written.
    void spreadsheetOpensInLibreOffice()
    {
        QString office = QStandardPaths::findExecutable("soffice");
        if (office.isEmpty())
            QSKIP("LibreOffice is not installed");
        QTemporaryDir folder;
        const QString csv = folder.filePath("board.csv");
        QCOMPARE(RunProgram(cli(), {"export", example(), "-o", csv}).code, 0);
        const CliRun convert =
            RunProgram(office,
                       {"-env:UserInstallation=file://" + folder.filePath("lo"), "--headless",
                        "--infilter=CSV:44,34,76,1", "--convert-to", "html", "--outdir", folder.filePath("out"), csv},
                       {}, 180000);
        QVERIFY2(convert.code == 0, qPrintable(convert.err));
        const QString table = QString::fromUtf8(ReadFileBytes(folder.filePath("out/board.html")));
        QCOMPARE(table.count("<tr"),
                 1 + 79); // the header and every strip, line breaks kept in cells
        for (const char *cell : {"Shooting day", "MARY ELLEN - DECK", "Old Billy sings the drowned men's song"})
            QVERIFY2(table.contains(QString::fromLatin1(cell).toHtmlEscaped()), cell);
    }

    // The web page export shows in a browser: a phone-sized screenshot holds the
    // strips' colours.
    void webPageShowsInChromium()
    {
        QString browser = QStandardPaths::findExecutable("chromium");
        if (browser.isEmpty())
            QSKIP("Chromium is not installed");
        QTemporaryDir folder;
        const QString html = folder.filePath("board.html");
        QCOMPARE(RunProgram(cli(), {"export", example(), "-o", html, "--colours", "classic"}).code, 0);
        const QString shot = folder.filePath("board.png");
        const CliRun r = RunProgram(browser,
                                    {"--headless", "--no-sandbox", "--disable-gpu", "--window-size=412,1600",
                                     "--screenshot=" + shot, "file://" + html},
                                    {}, 120000);
        QVERIFY2(QFile::exists(shot), qPrintable(r.err));
        const QImage image(shot);
        QCOMPARE(image.width(), 412);
        // The classic day-exterior yellow of the example's first scenes.
        bool yellow = false;
        for (int y = 0; y < image.height() && !yellow; y += 4)
            yellow = image.pixelColor(image.width() / 2, y) == QColor(255, 240, 120);
        QVERIFY(yellow);
    }
};

TB_TEST_GUILESS_MAIN(TestInstall)
#include "tst_install.moc"
